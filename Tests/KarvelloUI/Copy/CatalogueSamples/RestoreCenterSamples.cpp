#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"
#include "Tests/KarvelloUI/Copy/CatalogueSamples/SampleCandidate.h"

namespace KarvelloUI {
namespace {

CleanerCore::CleanupRestoreCenterSnapshot snapshot(std::size_t moves)
{
    CleanerCore::CleanResult result;
    result.cleanedItems.resize(
        moves, {.candidate = sampleCandidate(), .destinationURL = Platform::FileURL("/Karvello")});
    result.cleanedItems.front().restoreSourceIdentity = CleanerCore::FileResourceIdentity{};
    return CleanerCore::CleanupRestoreCenterSnapshot(result);
}

const CatalogueTheme kRestoreCenter("RestoreCenter",
    {
        {"restoreCenterTitle", &KarvelloCopy::restoreCenterTitle},
        {"restoreCenterBody", &KarvelloCopy::restoreCenterBody},
        {"restoreCenterSummary 1", [](const KarvelloCopy& copy) { return copy.restoreCenterSummary(snapshot(1)); }},
        {"restoreCenterSummary 2", [](const KarvelloCopy& copy) { return copy.restoreCenterSummary(snapshot(2)); }},
        {"restoreCenterLedgerNote",
            [](const KarvelloCopy& copy) {
                return copy.restoreCenterLedgerNote(CleanerCore::CleanupAuditSource::cleanupDashboard, "10:30");
            }},
        {"restoreCenterSelectionHint 1",
            [](const KarvelloCopy& copy) { return copy.restoreCenterSelectionHint(1, 1); }},
        {"restoreCenterSelectionHint 3",
            [](const KarvelloCopy& copy) { return copy.restoreCenterSelectionHint(2, 3); }},
        {"restoreCenterRestoreSelected 1",
            [](const KarvelloCopy& copy) { return copy.restoreCenterRestoreSelected(1); }},
        {"restoreCenterRestoreSelected 3",
            [](const KarvelloCopy& copy) { return copy.restoreCenterRestoreSelected(3); }},
        {"restoreCenterItemSubtitle",
            [](const KarvelloCopy& copy) { return copy.restoreCenterItemSubtitle(1536, "/Karvello"); }},
        {"restoreCenterItemSubtitle unavailable",
            [](const KarvelloCopy& copy) { return copy.restoreCenterItemSubtitle(1536, std::nullopt); }},
        {"restoreCenterTrashLocationLabel", &KarvelloCopy::restoreCenterTrashLocationLabel},
        {"restoreCenterTrashLocationUnavailable", &KarvelloCopy::restoreCenterTrashLocationUnavailable},
        {"restoreCenterReadyStatus", &KarvelloCopy::restoreCenterReadyStatus},
        {"restoreCenterUnavailableStatus", &KarvelloCopy::restoreCenterUnavailableStatus},
        {"restoreCenterHistoryOnlyStatus", &KarvelloCopy::restoreCenterHistoryOnlyStatus},
        {"restoreCenterRevealOriginal", &KarvelloCopy::restoreCenterRevealOriginal},
        {"restoreCenterRevealTrashLocation", &KarvelloCopy::restoreCenterRevealTrashLocation},
    });

} // namespace
} // namespace KarvelloUI
