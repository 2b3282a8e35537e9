#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

namespace KarvelloUI {
namespace {

const CatalogueTheme kApp("App",
    {
        {"appTitle", &KarvelloCopy::appTitle, SampleCoverage::staysEnglish},
        {"appSubtitle", &KarvelloCopy::appSubtitle},
        {"macCleanupBadge", &KarvelloCopy::macCleanupBadge},
        {"platformBoundaryTitle", &KarvelloCopy::platformBoundaryTitle},
        {"macBoundaryStatement", &KarvelloCopy::macBoundaryStatement},
        {"iOSBoundaryStatement", &KarvelloCopy::iOSBoundaryStatement},
        {"languageTitle", &KarvelloCopy::languageTitle},
        {"okButtonTitle", &KarvelloCopy::okButtonTitle},
        {"foundLabel", &KarvelloCopy::foundLabel},
        {"foundAcrossItems", [](const KarvelloCopy& copy) { return copy.foundAcrossItems(3); }},
        {"finderItemMissingTitle", &KarvelloCopy::finderItemMissingTitle},
        {"finderItemMissingMessage",
            [](const KarvelloCopy& copy) { return copy.finderItemMissingMessage("~/Karvello"); }, SampleCoverage::own},
        {"finderRevealFailedTitle", &KarvelloCopy::finderRevealFailedTitle},
        {"finderRevealFailedMessage",
            [](const KarvelloCopy& copy) { return copy.finderRevealFailedMessage("~/Karvello"); }, SampleCoverage::own},
    });

} // namespace
} // namespace KarvelloUI
