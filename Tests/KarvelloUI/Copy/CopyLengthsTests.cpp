#include "Platform/Base/Text.h"
#include "Tests/KarvelloUI/Copy/CatalogueSamples/CatalogueSample.h"
#include "Tests/KarvelloUI/Copy/GoldenPage.h"

#include <algorithm>
#include <set>

namespace KarvelloUI {
namespace {

/// Texts for one sort of place. Widths are columns, in which a character of Chinese, Japanese or Korean is two: at the size
/// of system text a column takes some 7 points.
struct Place {
    std::string_view name;
    /// What fits without cutting or wrapping. Absent: the place grows, or wraps.
    std::optional<std::size_t> mostColumns;
    std::vector<std::string_view> members;
};

const std::vector<Place> kPlaces{
    // Two of them stand side by side in a pane of 600 points, each with 10 points at its ends.
    {"Buttons", 39,
        {"okButtonTitle", "selectAll", "clearSelection", "selectVisibleCandidates", "clearVisibleSelection",
            "openInFinder", "moveSelectedToTrash", "deleteSelectedAppCache", "dashboardAccessButtonTitle", "exportJSON",
            "exportCSV", "exportRedactedJSON", "exportRedactedCSV", "homeAccessGrantButton", "homeAccessRevokeButton",
            "homeAccessPanelPrompt", "iOSStorageChecklistReset", "cleanupIgnoreDurationTitle", "ignoreCleanupCandidate",
            "showIgnoredCandidateAgain", "clearIgnoredCandidates", "macOnboardingPrimaryButton",
            "macOnboardingSecondaryButton", "permissionDiagnosticSamplePathsCopyButton", "resourceReliefQuitButton",
            "resourceReliefConfirmButton", "restoreCenterRestoreSelected", "restoreCenterRevealOriginal",
            "restoreCenterRevealTrashLocation", "scanAgain", "scanAppCache", "cancel", "cancelOperation"}},
    // Three in a row of the same pane.
    {"Pills and states", 28,
        {"macCleanupBadge", "trustReviewPill", "trustTrashPill", "trustScopePill", "safetyName", "selectionState",
            "iOSStorageChecklistStatusName", "iOSStorageChecklistActorName", "localizedPressure",
            "localizedThermalState", "scanModeName", "auditOperationName", "cleanupReviewProfileName",
            "candidateListGroupingModeName", "duplicateKeeperReasonName"}},
    // A sidebar of 240 points, of which the symbol, its gap and the margins take 60.
    {"Titles in the sidebar", 25, {"macDashboardSectionTitle"}},
    // Four cards beside each other, 120 points of text each.
    {"Labels of figures", 16,
        {"foundLabel", "selectedTitle", "reclaimableTitle", "skippedTitle", "scanRunnerProgressLabel",
            "scanRunnerScannedLabel", "scanRunnerCandidatesLabel", "scanRunnerSkippedLabel", "systemTrendName"}},
    // Three cards of a report, 190 points each.
    {"Labels of the report", 26,
        {"cleanupImpactExpectedLabel", "cleanupImpactActualLabel", "cleanupImpactUnreclaimedLabel"}},
    {"Titles and labels that may take the whole line", std::nullopt,
        {"restoreCenterTrashLocationLabel", "permissionWizardStepLabel", "platformBoundaryTitle", "languageTitle",
            "finderItemMissingTitle", "finderRevealFailedTitle", "auditLogTitle", "cleanupCandidatesTitle",
            "candidateListCategoryFilterTitle", "candidateListSafetyFilterTitle", "candidateListGroupingTitle",
            "noCleanupCandidatesTitle", "noFilteredCleanupCandidatesTitle", "lastCleanTitle", "lastRestoreTitle",
            "cleanupImpactTitle", "scanExportTitle", "scanExportFailedTitle", "homeAccessOnboardingTitle",
            "iOSAllowsTitle", "iOSSandboxTitle", "iOSStorageChecklistTitle", "ignoredCandidatesTitle",
            "insightSectionTitle", "macOnboardingTitle", "macOnboardingLanguageTitle", "macOnboardingScanFirstTitle",
            "macOnboardingAccessTitle", "macOnboardingSafetyTitle", "permissionDiagnosticTitle",
            "permissionWizardStepTitle", "permissionDiagnosticSamplePathsTitle", "permissionWizardTitle",
            "settingsAccessDiagnosticsTitle", "restoreCenterTitle", "cleanupControlTitle", "trustBriefTitle",
            "safetyModelTitle", "recommendedActionsTitle", "scanModeTitle", "aggressiveWarningTitle",
            "storageTimelinePointTitle", "confirmMoveTitle", "confirmDeleteTitle", "duplicateGroupTitle", "appTitle"}},
};

/// The samples of a place, in the order of its members.
std::vector<const CatalogueSample*> samplesOf(const Place& place)
{
    std::vector<const CatalogueSample*> found;
    for (const std::string_view member : place.members) {
        for (const auto& [theme, samples] : catalogueSamples()) {
            for (const CatalogueSample& sample : samples) {
                if (sample.member() == member) {
                    found.push_back(&sample);
                }
            }
        }
    }
    return found;
}

std::size_t width(const CatalogueSample& sample, AppLanguage language)
{
    return Platform::Text::columns(sample.text({language}));
}

/// How long the short texts are in each language beside the English.
std::string lengthsPage()
{
    constexpr auto languages = Platform::allCases<AppLanguage>();
    std::string page = "# How wide the short texts of the catalogue are, in columns (a Chinese, Japanese or Korean "
                       "character is two).\n# scripts/write-copy-page writes it.\n";
    for (const Place& place : kPlaces) {
        page += fmt::format("\n== {}{} ==\n\n", place.name,
            place.mostColumns ? fmt::format(", at most {}", *place.mostColumns) : std::string());
        for (const AppLanguage language : languages) {
            page += fmt::format("{:>8}", Platform::rawValue(language));
        }
        page += "\n";
        for (const CatalogueSample* const sample : samplesOf(place)) {
            for (const AppLanguage language : languages) {
                page += fmt::format("{:>8}", width(*sample, language));
            }
            page += fmt::format("  {}: {}\n", sample->name, sample->text({AppLanguage::english}));
        }
    }
    return page;
}

TEST(CopyLengths, AreThoseOfThePage)
{
    expectGolden(lengthsPage(), KARVELLO_SOURCE_DIR "/Tests/Golden/copy-lengths.txt");
}

TEST(CopyLengths, NoTextOverrunsItsPlaceInTheWidestLanguage)
{
    for (const Place& place : kPlaces) {
        for (const CatalogueSample* const sample : samplesOf(place)) {
            for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
                EXPECT_LE(width(*sample, language), place.mostColumns.value_or(1000))
                    << place.name << ": " << sample->name << ": " << sample->text({language});
            }
        }
    }
}

TEST(CopyLengths, KnowThePlaceOfEveryShortText)
{
    std::set<std::string_view> placed;
    for (const Place& place : kPlaces) {
        for (const std::string_view member : place.members) {
            EXPECT_TRUE(placed.insert(member).second) << member << " stands twice";
        }
        EXPECT_GE(samplesOf(place).size(), place.members.size()) << place.name << " names a member that is none";
    }
    for (const auto& [theme, samples] : catalogueSamples()) {
        for (const CatalogueSample& sample : samples) {
            const std::string_view member = sample.member();
            const bool isShort =
                std::ranges::any_of(std::array<std::string_view, 5>{"Button", "Pill", "Badge", "Title", "Label"},
                    [member](std::string_view ending) { return member.ends_with(ending); });
            // What is read out has no place on the screen.
            const bool isRead =
                member.find("Accessibility") != std::string_view::npos || member.ends_with("PickerLabel");
            EXPECT_TRUE(!isShort || isRead || placed.contains(member)) << member;
        }
    }
}

} // namespace
} // namespace KarvelloUI
