#include "KarvelloUI/Copy/KarvelloCopy.h"

#include "KarvelloUI/Copy/SentencePattern.h"
#include "Tests/KarvelloUI/Copy/CopyLanguages.h"
#include "Tests/KarvelloUI/Copy/EnglishTables.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace KarvelloUI {
namespace {

using CleanerCore::CleanupAuditEntry;
using CleanerCore::CleanupAuditOperation;
using CleanerCore::CleanupAuditSource;

TEST(KarvelloCopy, TellsOfACleanupInOneLine)
{
    CleanupAuditEntry entry{.succeededItemCount = 5, .failedItemCount = 2, .affectedBytes = 1536};
    EXPECT_EQ(kEnglish.auditEntrySummary(entry), "5 succeeded, 2 failed · 1.5 KB");
    EXPECT_EQ(kKorean.auditEntrySummary(entry), "5개 성공, 2개 실패 · 1.5KB");
    entry.wasCancelled = true;
    EXPECT_EQ(kEnglish.auditEntrySummary(entry), "5 succeeded, 2 failed · 1.5 KB · cancelled");
    EXPECT_EQ(kKorean.auditEntrySummary(entry), "5개 성공, 2개 실패 · 1.5KB · 취소됨");
    EXPECT_EQ(kEnglish.auditEntryAccessibilityLabel(entry, "10:30"),
        "Clean, Cleanup dashboard, 10:30, 5 succeeded, 2 failed, 1.5 KB, cancelled");
}

TEST(KarvelloCopy, NamesOperationsAndSources)
{
    EXPECT_EQ(kEnglish.auditOperationName(CleanupAuditOperation::restore), "Restore");
    EXPECT_EQ(kKorean.auditOperationName(CleanupAuditOperation::clean), "정리");
    EXPECT_EQ(kEnglish.auditSourceName(CleanupAuditSource::macInsights), "Mac insights");
    EXPECT_EQ(kKorean.auditSourceName(CleanupAuditSource::iOSSandbox), "iOS 샌드박스");
}

TEST(KarvelloCopy, AsksForAccessWhenNothingWasBlocked)
{
    EXPECT_EQ(kEnglish.smartCleanupPermissionDetail(0), "Access check needed");
    EXPECT_EQ(kEnglish.smartCleanupPermissionDetail(3), "3 skipped");
    EXPECT_EQ(kEnglish.smartCleanupPermissionBody(0),
        "Home folder access is needed for complete scan results. Review access status in Settings.");
    EXPECT_EQ(kEnglish.smartCleanupPermissionBody(3),
        "3 items were skipped because of permissions or security scope. Review access status in Settings.");
}

TEST(KarvelloCopy, PutsSizesAndTitlesIntoRecommendations)
{
    EXPECT_EQ(kEnglish.smartCleanupLowDiskBody(1536, "Downloads"),
        "Free space is 1.5 KB. Start by reviewing larger candidates in Downloads.");
    EXPECT_EQ(kKorean.smartCleanupOpenSectionCTA("다운로드"), "다운로드 열기");
    EXPECT_EQ(kEnglish.smartCleanupOpenSectionCTA("Downloads"), "Open Downloads");
    EXPECT_EQ(kEnglish.smartCleanupSizeDetail(-1), "0 bytes");
}

TEST(KarvelloCopy, CountsLargeFilesWithoutAVerbInEnglish)
{
    EXPECT_EQ(kEnglish.smartCleanupLargeFilesBody(3),
        "3 large files by size. Review what you recognize; nothing is removed automatically.");
    EXPECT_EQ(KarvelloCopy{AppLanguage::simplifiedChinese}.smartCleanupLargeFilesBody(3),
        "按大小显示 3 个大文件。请检查你认得的文件；不会自动移除任何内容。");
}

TEST(KarvelloCopy, TakesItsEnglishFromTheTables)
{
    const auto& keys = EnglishTables::read().keys;
    for (const std::string& text :
        {kEnglish.auditLogTitle(), kEnglish.auditLogEmpty(), kEnglish.auditLogLoading(), kEnglish.auditLogExportBody(),
            kEnglish.auditLogExportPanelMessage(), kEnglish.auditOperationName(CleanupAuditOperation::clean),
            kEnglish.auditOperationName(CleanupAuditOperation::restore),
            kEnglish.auditSourceName(CleanupAuditSource::cleanupDashboard),
            kEnglish.auditSourceName(CleanupAuditSource::macInsights),
            kEnglish.auditSourceName(CleanupAuditSource::iOSSandbox), kEnglish.smartCleanupPermissionBody(0),
            kEnglish.smartCleanupPermissionDetail(0)}) {
        EXPECT_NE(std::ranges::find(keys, text), keys.end()) << text;
    }
}

TEST(KarvelloCopy, BuildsSentencesOfTheShapesInTheTables)
{
    const CleanupAuditEntry entry{.succeededItemCount = 5, .failedItemCount = 2, .affectedBytes = 1536};
    const auto& templates = EnglishTables::read().templates;
    for (const std::string& text : {kEnglish.auditLogExportFailedMessage("x"), kEnglish.auditEntrySummary(entry),
             kEnglish.smartCleanupLowDiskBody(1, "Cleanup"), kEnglish.smartCleanupDuplicatesBody(2),
             kEnglish.smartCleanupPermissionBody(2), kEnglish.smartCleanupPermissionDetail(2),
             kEnglish.smartCleanupCandidatesBody(2), kEnglish.smartCleanupDownloadsBody(2)}) {
        // The comma row takes any sentence with a comma and a space, so it says nothing of this one.
        EXPECT_TRUE(std::ranges::any_of(templates, [&text](const std::string& pattern) {
            MatchableSentence sentence(text);
            MatchBudget budget;
            const auto match = SentencePattern::shared(pattern)->firstMatch(sentence, budget);
            return pattern != R"(^(.+?),\ (.+?)$)" && match && *match;
        })) << text;
    }
}

} // namespace
} // namespace KarvelloUI
