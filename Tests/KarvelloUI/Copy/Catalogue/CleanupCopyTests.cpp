#include "KarvelloUI/Copy/KarvelloCopy.h"
#include "Tests/KarvelloUI/Copy/CatalogueSamples/SampleCandidate.h"
#include "Tests/KarvelloUI/Copy/CatalogueSamples/SampleImpact.h"
#include "Tests/KarvelloUI/Copy/CopyLanguages.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace KarvelloUI {
namespace {

using CleanerCore::CleaningMode;
using CleanerCore::CleanupCategory;
using CleanerCore::CleanupSafety;
using CleanerCore::CleanupSelectionPreview;

TEST(CleanupCopy, SaysOneThingInTheSingular)
{
    EXPECT_EQ(kEnglish.itemsScannedCount(1), "1 item scanned");
    EXPECT_EQ(kEnglish.itemsScannedCount(0), "0 items scanned");
    EXPECT_EQ(kEnglish.skippedMore(1), "1 more skipped item");
    EXPECT_EQ(kEnglish.selectedSubtitle(1), "1 item will be moved to Trash");
    EXPECT_TRUE(kEnglish.skippedSummary(1).starts_with("1 item was skipped because it was missing,"));
    EXPECT_TRUE(kEnglish.confirmMoveMessage(1, 1024).starts_with("This will move 1 selected item (1 KB) to Trash."));
    EXPECT_TRUE(kEnglish.confirmDeleteMessage(1, 1024).starts_with("This will permanently delete 1 selected item (1"));
    EXPECT_EQ(kGerman.itemsScannedCount(1).find("item"), std::string::npos);
}

TEST(CleanupCopy, TellsWhatTheSessionsTell)
{
    EXPECT_EQ(kEnglish.cleanFailureMessage(), "Some items could not be cleaned. Review the result details.");
    EXPECT_EQ(kEnglish.cleanCancelledMessage(),
        "Cleaning was cancelled. Items already moved to Trash stay recorded and are removed from the list; remaining "
        "candidates stay available for review.");
    EXPECT_EQ(
        kEnglish.restoreFailureMessage(), "Some items could not be restored from Trash. Review the result details.");
    EXPECT_EQ(kEnglish.restoreCancelledMessage(),
        "Restore was cancelled. Any items already restored are added back to candidates; remaining recorded items can "
        "be tried again later when possible.");
    EXPECT_EQ(kEnglish.confirmMoveTitle(), "Move selected items to Trash?");
    EXPECT_EQ(kEnglish.moveSelectedToTrash(), "Move Selected to Trash");
}

TEST(CleanupCopy, EndsTheMessagesOfTheStoresWithTheReason)
{
    EXPECT_EQ(kEnglish.cleanupIgnoreSaveFailedMessage("x"), "Could not save ignored cleanup items: x");
    EXPECT_EQ(kEnglish.cleanupIgnoreLoadFailedMessage("x"),
        "Could not load ignored cleanup items. The saved ignore list was backed up and reset: x");
    EXPECT_EQ(kEnglish.homeAccessBookmarkSaveFailedMessage("x"), "Could not save home folder access bookmark: x");
    EXPECT_EQ(kEnglish.homeAccessBookmarkLoadFailedMessage("x"),
        "Could not load home folder access bookmark. The saved bookmark was backed up and reset: x");
    EXPECT_EQ(kEnglish.homeAccessBookmarkResolveFailedMessage("x"),
        "Could not resolve home folder access bookmark and cleared it. Grant access again: x");
    EXPECT_EQ(kEnglish.homeAccessBookmarkStaleMessage(),
        "Home folder access bookmark expired and was cleared. Grant access again.");
    EXPECT_EQ(kEnglish.customScanFoldersSaveFailedMessage("x"), "Could not save custom scan folders: x");
    EXPECT_EQ(kEnglish.customScanFoldersLoadFailedMessage("x"),
        "Could not load custom scan folders. The saved folder list was backed up and reset: x");
    EXPECT_EQ(kEnglish.homeAccessPanelPrompt(), "Select Home Folder");
    EXPECT_EQ(kEnglish.homeAccessPanelMessage(),
        "Select your home folder (or ~/Library) so Karvello can scan user caches and logs.");
}

TEST(CleanupCopy, KeepsAHostileNameAsItIs)
{
    const std::string name = "a{0}\n\xff\xe2\x80\xae%d";
    for (const AppLanguage language : Platform::allCases<AppLanguage>()) {
        EXPECT_THAT(KarvelloCopy{language}.scanExportFailedMessage(name), testing::EndsWith(name));
        EXPECT_THAT(KarvelloCopy{language}.restoreCenterItemSubtitle(1, name), testing::EndsWith(name));
    }
}

TEST(CleanupCopy, TellsTheConfidenceOfASelection)
{
    EXPECT_EQ(kEnglish.cleanupPreviewConfidenceSummary({}), "No confidence summary until items are selected.");
    const std::array candidates{sampleCandidate(), sampleCandidate(), sampleCandidate(CleanupSafety::manualReview)};
    const CleanupSelectionPreview preview(candidates);
    EXPECT_EQ(kEnglish.cleanupPreviewConfidenceSummary(preview.safetyBreakdown), "Safe 2 · Manual 1");
    EXPECT_EQ(kKorean.cleanupPreviewConfidenceSummary(preview.safetyBreakdown), "안전 2 · 수동 1");
    EXPECT_EQ(kGerman.cleanupPreviewConfidenceSummary(preview.safetyBreakdown), "Sicher 2 · Manuell 1");
}

TEST(CleanupCopy, ConfirmsAMoveWithItsCategoriesAndItsHiddenItems)
{
    const std::array candidates{sampleCandidate(), sampleCandidate(CleanupSafety::safe, CleanupCategory::userLogs)};
    const CleanupSelectionPreview preview(candidates);
    const std::string plain = kEnglish.confirmMovePreviewMessage(preview, 0);
    EXPECT_THAT(plain,
        testing::EndsWith("only after reviewing paths.\n\nPreview: Safe 2 (User Logs, Xcode DerivedData). Cleanup "
                          "moves items to Trash only."));
    EXPECT_THAT(plain, testing::StartsWith("This will move 2 selected items (3 KB) to Trash."));
    EXPECT_EQ(kEnglish.confirmMovePreviewMessage(preview, 1),
        plain
            + "\n\n1 hidden selected item is included because of the current filters. Adjust filters to reveal and "
              "deselect hidden items, or cancel cleanup before moving items to Trash.");
}

TEST(CleanupCopy, SaysInOwnTextsWhatTheTablesDoNotHave)
{
    const std::array candidates{sampleCandidate(), sampleCandidate()};
    const CleanupSelectionPreview preview(candidates);
    EXPECT_EQ(kGerman.cleanupPreviewSummary(preview),
        "Prüfen Sie Sicherheitsstufen und Kategorien, bevor Sie dies in den Papierkorb legen: 2 Objekte (3 KB).");
    EXPECT_EQ(kGerman.cleanupPreviewCategoryLine(preview.categorySummaries.front()),
        "DerivedData von Xcode · 2 Objekte · 3 KB");
    EXPECT_EQ(kGerman.cleanupImpactAccessibilityLabel(sampleImpact(CleaningMode::moveToTrash, 2048, true)),
        "Vorher-nachher-Bericht, Bereinigungs-Dashboard, Erwartet im Papierkorb 2 KB, In den Papierkorb gelegt 1.5 KB, "
        "Noch "
        "nicht zurückgewonnen 1.5 KB, 75%, erfolgreich: 5, fehlgeschlagen: 1, abgebrochener Vorgang");
}

TEST(CleanupCopy, ClaimsRecoveryOnlyForADeletion)
{
    EXPECT_EQ(kEnglish.cleanupImpactSummary(sampleImpact(CleaningMode::deletePermanently, 2048, true)),
        "5 of 6 requested items recovered, 1 failed · 75% recovered. Based on a cancelled run.");
    EXPECT_EQ(kEnglish.cleanupImpactSummary(sampleImpact(CleaningMode::moveToTrash, 0, true)),
        "5 of 6 requested items moved to Trash, 1 failed · Move percentage unavailable. Moved bytes are pending "
        "recovery; actual free space increases after Trash is emptied, and macOS Storage may update later. Based on a "
        "cancelled run.");
    EXPECT_EQ(kEnglish.cleanupImpactSummary(sampleImpact(std::nullopt, 2048, true)),
        "5 of 6 requested items processed, 1 failed · 75% processed. Disk recovery is not verified. Based on a "
        "cancelled run.");
}

TEST(CleanupCopy, ReadsACandidateOutSentenceBySentence)
{
    const auto candidate = sampleCandidate(CleanupSafety::caution);
    EXPECT_EQ(kEnglish.cleanupCandidateAccessibilityLabel(candidate, "App container Notes", "Xcode guidance."),
        "Cleanup candidate Karvello. Safety: Caution. Size: 1.5 KB. Location: /Karvello. Category: Xcode DerivedData. "
        "App context: App container Notes. Developer cleanup guidance: Xcode guidance. Reason: Flagged because Xcode "
        "can rebuild these derived artifacts; confirm the current build state is disposable. Recommended action: Stop "
        "Xcode builds and tests first; move to Trash only when current build artifacts are disposable.");
    const std::string japanese = kJapanese.cleanupCandidateAccessibilityLabel(candidate, {}, {});
    EXPECT_EQ(japanese.find("。。"), std::string::npos) << japanese;
    EXPECT_THAT(japanese, testing::HasSubstr("理由："));
}

TEST(CleanupCopy, TranslatesASentenceAroundAPartWithACommaInIt)
{
    EXPECT_EQ(kGerman.ignoredCandidateDurationDescription(CleanupIgnoreDuration::oneDay, "28.11.2026, 10:30"),
        "Lokal aus der Überprüfung ausgeblendet bis: 28.11.2026, 10:30.");
    EXPECT_EQ(kGerman.cleanupIgnoreSaveFailedMessage("a, b"),
        "Die ignorierten Kandidaten konnten nicht gesichert werden: a, b");
    EXPECT_EQ(kGerman.restoreCenterItemSubtitle(1024, "/a, b"), "1 KB · Ort im Papierkorb: /a, b");
    EXPECT_THAT(kGerman.restoreCenterLedgerNote(CleanerCore::CleanupAuditSource::cleanupDashboard, "1, 2"),
        testing::StartsWith("Geladen aus dem Verlauf „Bereinigungs-Dashboard“, Datum: 1, 2. "));
    EXPECT_EQ(kGerman.permissionDiagnosticSamples(std::array<std::string, 2>{"/a, b", "/c"}), "Beispiele: /a, b · /c");
    EXPECT_THAT(kGerman.cleanupCandidateAccessibilityLabel(sampleCandidate(), {}, {}),
        testing::AllOf(testing::HasSubstr("Grund: Aufgeführt, weil"), testing::HasSubstr("Empfohlene Aktion: ")));
}

TEST(CleanupCopy, SummarisesWhatCanBeRestored)
{
    const CleanerCore::CleanResult result{
        .cleanedItems = {{.candidate = sampleCandidate(),
                             .destinationURL = Platform::FileURL("/a"),
                             .restoreSourceIdentity = CleanerCore::FileResourceIdentity{}},
            {.candidate = sampleCandidate()}}};
    const CleanerCore::CleanupRestoreCenterSnapshot snapshot(result);
    EXPECT_EQ(kEnglish.restoreCenterSummary(snapshot),
        "2 recently cleaned · 1 recorded Trash move · 1 eligible to try restore · Recorded Trash size 1.5 KB · "
        "Eligible recorded size 1.5 KB");
    EXPECT_EQ(kKorean.restoreCenterSummary(snapshot),
        "최근 정리 2개 · 기록된 휴지통 이동 1건 · 복원 시도 가능 1개 · 기록된 휴지통 이동 크기 1.5KB · 복원 가능한 "
        "기록 "
        "크기 1.5KB");
}

TEST(CleanupCopy, SpeaksOfEachCategoryInItsOwnWords)
{
    EXPECT_EQ(kKorean.categoryName(CleanupCategory::customFolder), "사용자 지정 폴더");
    EXPECT_EQ(kEnglish.categoryRecommendedAction(CleanupCategory::temporaryFiles),
        "Confirm the item is not open or in use, then move stale temporary files to Trash.");
    EXPECT_EQ(kEnglish.recommendationReason(CleanerCore::CleanupRecommendationReason::sharedContainerCache),
        "Flagged as shared-container cache; review the path because multiple apps may use it.");
    for (const CleanupCategory category : Platform::allCases<CleanupCategory>()) {
        EXPECT_EQ(kEnglish.categoryName(category), CleanerCore::displayName(category));
        EXPECT_EQ(kEnglish.categoryExplanation(category), CleanerCore::explanation(category));
    }
}

TEST(CleanupCopy, CountsAMonthAs30DaysAndAYearAs365)
{
    const auto age = [](double days) {
        return kEnglish.reviewAgeText(Platform::Date{0}, Platform::Date{0}.addingSeconds(days * 86400));
    };
    EXPECT_EQ(age(-5), "1 day");
    EXPECT_EQ(age(0), "1 day");
    EXPECT_EQ(age(1.9), "1 day");
    EXPECT_EQ(age(29.9), "29 days");
    EXPECT_EQ(age(30), "1 month");
    EXPECT_EQ(age(364.9), "12 months");
    EXPECT_EQ(age(365), "1 year");
    EXPECT_EQ(age(1e300), "2,739,726 years");
    EXPECT_EQ(kKorean.reviewAgeText(Platform::Date{0}, Platform::Date{90 * 86400.0}), "3개월");
}

TEST(CleanupCopy, TellsWhenAFileWasChangedIfThatIsKnown)
{
    const CleanerCore::FileInsight::Fields fields{.url = Platform::FileURL("/a"), .detail = {}};
    CleanerCore::FileInsight file(fields);
    EXPECT_EQ(kEnglish.reviewDetail(file, {}), "Large file · review before Trash move");
    file.lastModified = Platform::Date{0};
    EXPECT_EQ(kEnglish.reviewDetail(file, Platform::Date{90 * 86400.0}), "Large file · modified 3 months ago");
}

TEST(CleanupCopy, TranslatesTheReasonsOfTheEngineAndTheSystem)
{
    EXPECT_EQ(kKorean.skippedReason("Recently modified"), "최근에 수정됨");
    EXPECT_EQ(kKorean.skippedReason("Input/output error"), "입출력 오류");
    EXPECT_EQ(kGerman.skippedReason("Something new: ENOSPC"), "Something new: ENOSPC");
    EXPECT_EQ(kEnglish.skippedReason("Recently modified"), "Recently modified");
}

TEST(CleanupCopy, CountsWhatAListShows)
{
    EXPECT_EQ(kEnglish.visibleCleanupCandidatesSummary(40, 40), "40 items");
    EXPECT_EQ(kEnglish.visibleCleanupCandidatesSummary(12, 40), "12 / 40 items");
    EXPECT_EQ(kKorean.visibleCleanupCandidatesSummary(12, 40), "항목 40개 중 12개 표시");
    EXPECT_EQ(kEnglish.bulkSelectionAccessibilityValue(0, 0), "No items selected");
    EXPECT_EQ(kEnglish.visibleBulkSelectionAccessibilityValue(3, 12), "Some items selected, 3 / 12");
}

} // namespace
} // namespace KarvelloUI
