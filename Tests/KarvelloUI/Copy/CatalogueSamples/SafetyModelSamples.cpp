#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

namespace KarvelloUI {
namespace {

const CatalogueTheme kSafetyModel("SafetyModel",
    {
        {"cleanupControlTitle", &KarvelloCopy::cleanupControlTitle},
        {"cleanupControlSubtitle", &KarvelloCopy::cleanupControlSubtitle},
        {"trustBriefTitle", &KarvelloCopy::trustBriefTitle},
        {"trustBriefBody", &KarvelloCopy::trustBriefBody},
        {"trustReviewPill", &KarvelloCopy::trustReviewPill},
        {"trustTrashPill", &KarvelloCopy::trustTrashPill},
        {"trustScopePill", &KarvelloCopy::trustScopePill},
        {"safetyModelTitle", &KarvelloCopy::safetyModelTitle},
        {"safetyTrashRule", &KarvelloCopy::safetyTrashRule},
        {"safetyScopeRule", &KarvelloCopy::safetyScopeRule},
        {"safetySkipRule", &KarvelloCopy::safetySkipRule},
        {"recommendedActionsTitle", &KarvelloCopy::recommendedActionsTitle},
        {"recommendedActionsSettings", &KarvelloCopy::recommendedActionsSettings},
        {"recommendedActionsSandboxWarning", &KarvelloCopy::recommendedActionsSandboxWarning},
    });

} // namespace
} // namespace KarvelloUI
