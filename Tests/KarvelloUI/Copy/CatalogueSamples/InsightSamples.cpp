#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

namespace KarvelloUI {
namespace {

const CatalogueTheme kInsightTitles(
    "Insight", samplesOfEachCase<MacInsightFileSection>("insightSectionTitle", &KarvelloCopy::insightSectionTitle));
const CatalogueTheme kInsightDetails(
    "Insight", samplesOfEachCase<MacInsightFileSection>("insightDetail", &KarvelloCopy::insightDetail));
const CatalogueTheme kEmptyLists("Insight",
    samplesOfEachCase<MacInsightFileSection>("noInsightItemsDescription", &KarvelloCopy::noInsightItemsDescription));
const CatalogueTheme kInsight("Insight",
    {
        {"insightControlDescription", &KarvelloCopy::insightControlDescription},
        {"insightExportBody", &KarvelloCopy::insightExportBody},
        {"insightSkippedBody", [](const KarvelloCopy& copy) { return copy.insightSkippedBody(3); }},
    });

} // namespace
} // namespace KarvelloUI
