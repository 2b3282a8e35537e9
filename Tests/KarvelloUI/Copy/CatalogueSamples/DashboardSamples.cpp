#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"

namespace KarvelloUI {
namespace {

const CatalogueTheme kSectionTitles("Dashboard",
    samplesOfEachCase<MacDashboardSection>("macDashboardSectionTitle", &KarvelloCopy::macDashboardSectionTitle));

const CatalogueTheme kDashboard("Dashboard",
    {
        {"dashboardAccessButtonTitle without access",
            [](const KarvelloCopy& copy) { return copy.dashboardAccessButtonTitle(false); }},
        {"dashboardAccessButtonTitle with access",
            [](const KarvelloCopy& copy) { return copy.dashboardAccessButtonTitle(true); }},
        {"dashboardHomeScanSummaryBody needsAccess",
            [](const KarvelloCopy& copy) { return copy.dashboardHomeScanSummaryBody(HomeScanState::needsAccess); }},
        {"dashboardHomeScanSummaryBody ready",
            [](const KarvelloCopy& copy) { return copy.dashboardHomeScanSummaryBody(HomeScanState::ready); }},
        {"dashboardHomeScanSummaryBody scanned",
            [](const KarvelloCopy& copy) { return copy.dashboardHomeScanSummaryBody(HomeScanState::scanned); }},
        {"dashboardReviewEvidenceProjectSummary 0",
            [](const KarvelloCopy& copy) { return copy.dashboardReviewEvidenceProjectSummary(0, 0); }},
        {"dashboardReviewEvidenceProjectSummary 2",
            [](const KarvelloCopy& copy) { return copy.dashboardReviewEvidenceProjectSummary(2, 1536); }},
    });

} // namespace
} // namespace KarvelloUI
