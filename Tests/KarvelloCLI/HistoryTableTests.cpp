#include "KarvelloCLI/HistoryTable.h"

#include "Tests/KarvelloCLI/TableSamples.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace KarvelloCLI;
using CleanerCore::CleanupAuditEntry;
using CleanerCore::CleanupAuditOperation;
using CleanerCore::CleanupAuditSource;
using KarvelloCLITests::homeStyle;
using testing::HasSubstr;

namespace {

std::vector<CleanupAuditEntry> entries()
{
    CleanupAuditEntry clean;
    clean.id = *Platform::UUID::fromString("9B6C2D0E-7A41-4E53-8E11-0C6E7C5A2F10");
    clean.requestedItemCount = 1200;
    clean.succeededItemCount = 7;
    clean.failedItemCount = 1;
    clean.affectedBytes = 2048;
    clean.wasCancelled = true;
    CleanupAuditEntry restore;
    restore.operation = CleanupAuditOperation::restore;
    restore.source = CleanupAuditSource::macInsights;
    return {clean, restore};
}

std::size_t widestLine(const std::string& text)
{
    std::size_t widest = 0;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = text.find('\n', begin);
        widest = std::max(widest, end - begin);
        begin = end + 1;
    }
    return widest;
}

} // namespace

TEST(HistoryTable, HasAnEntryALineWhereThereIsRoom)
{
    const std::string text = historyTable(entries(), homeStyle(90));
    EXPECT_THAT(text, HasSubstr("Operation  Source    Asked  Done  Failed     Size\n"));
    EXPECT_THAT(text, HasSubstr("  Clean      cleanup    1200     7       1     2 KB  cancelled\n"));
    EXPECT_THAT(text, HasSubstr("  Restore    insights      0     0       0  0 bytes\n"));
    EXPECT_LE(widestLine(text), 90U);
}

TEST(HistoryTable, HasTheIdsWhereThereIsMuchRoom)
{
    EXPECT_THAT(
        historyTable(entries(), homeStyle(120)), HasSubstr("cancelled  9B6C2D0E-7A41-4E53-8E11-0C6E7C5A2F10\n"));
    EXPECT_LE(widestLine(historyTable(entries(), homeStyle(120))), 120U);
}

TEST(HistoryTable, HasTwoLinesAnEntryWhereItIsNarrow)
{
    const std::string text = historyTable(entries(), homeStyle(60));
    EXPECT_THAT(text, HasSubstr("  Clean  cleanup  cancelled\n  1200 asked, 7 done, 1 failed, 2 KB\n"));
    EXPECT_LE(widestLine(text), 60U);
}

TEST(HistoryTable, SaysThatThereIsNothing)
{
    EXPECT_EQ(historyTable({}, homeStyle(80)), "Nothing has been cleaned or restored yet.\n");
}
