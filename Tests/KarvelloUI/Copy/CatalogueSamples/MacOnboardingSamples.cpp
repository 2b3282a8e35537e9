#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

namespace KarvelloUI {
namespace {

const CatalogueTheme kMacOnboarding("MacOnboarding",
    {
        {"macOnboardingEyebrow", &KarvelloCopy::macOnboardingEyebrow},
        {"macOnboardingTitle", &KarvelloCopy::macOnboardingTitle},
        {"macOnboardingBody", &KarvelloCopy::macOnboardingBody},
        {"macOnboardingLanguageTitle", &KarvelloCopy::macOnboardingLanguageTitle},
        {"macOnboardingLanguageBody", &KarvelloCopy::macOnboardingLanguageBody},
        {"macOnboardingScanFirstTitle", &KarvelloCopy::macOnboardingScanFirstTitle},
        {"macOnboardingScanFirstBody", &KarvelloCopy::macOnboardingScanFirstBody},
        {"macOnboardingAccessTitle", [](const KarvelloCopy& copy) { return copy.macOnboardingAccessTitle(false); }},
        {"macOnboardingAccessTitle direct",
            [](const KarvelloCopy& copy) { return copy.macOnboardingAccessTitle(true); }, SampleCoverage::own},
        {"macOnboardingAccessBody", [](const KarvelloCopy& copy) { return copy.macOnboardingAccessBody(false); }},
        {"macOnboardingAccessBody direct", [](const KarvelloCopy& copy) { return copy.macOnboardingAccessBody(true); }},
        {"macOnboardingSafetyTitle", &KarvelloCopy::macOnboardingSafetyTitle},
        {"macOnboardingSafetyBody", &KarvelloCopy::macOnboardingSafetyBody},
        {"macOnboardingPrimaryButton without access",
            [](const KarvelloCopy& copy) { return copy.macOnboardingPrimaryButton(false); }},
        {"macOnboardingPrimaryButton with access",
            [](const KarvelloCopy& copy) { return copy.macOnboardingPrimaryButton(true); }},
        {"macOnboardingSecondaryButton", &KarvelloCopy::macOnboardingSecondaryButton},
        {"macOnboardingSkipCaption", &KarvelloCopy::macOnboardingSkipCaption},
    });

} // namespace
} // namespace KarvelloUI
