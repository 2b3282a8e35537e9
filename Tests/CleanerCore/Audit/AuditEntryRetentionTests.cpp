#include "CleanerCore/Audit/AuditEntryRetention.h"

#include "Platform/Base/UUID.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace CleanerCore {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Entries are told apart by their counts of items.
CleanupAuditEntry numberedEntry(int number, double date, std::int64_t count = 0)
{
    return {.id = *Platform::UUID::fromString(fmt::format("00000000-0000-4000-8000-{:012X}", number)),
        .occurredAt = Platform::Date{date},
        .requestedItemCount = count};
}

std::vector<std::string> lastDigits(const std::vector<CleanupAuditEntry>& entries)
{
    std::vector<std::string> digits;
    for (const auto& entry : entries) {
        digits.push_back(entry.id.string().substr(34));
    }
    return digits;
}

} // namespace

TEST(AuditEntryRetention, PutsTheNewestFirstAndEqualDatesByDescendingId)
{
    const auto entries = AuditEntryRetention::limited(
        {numberedEntry(1, 5), numberedEntry(10, 7), numberedEntry(11, 7), numberedEntry(9, 7), numberedEntry(2, 9)},
        100);
    EXPECT_THAT(lastDigits(entries), ElementsAre("02", "0B", "0A", "09", "01"));
}

TEST(AuditEntryRetention, KeepsOfAnIdWhatStandsFirst)
{
    const auto entries =
        AuditEntryRetention::limited({numberedEntry(1, 5, 1), numberedEntry(2, 6), numberedEntry(1, 9, 2)}, 100);
    EXPECT_THAT(lastDigits(entries), ElementsAre("02", "01"));
    EXPECT_EQ(entries.back().requestedItemCount, 1);
}

TEST(AuditEntryRetention, DropsTheOldestBeyondTheLimit)
{
    EXPECT_THAT(
        lastDigits(AuditEntryRetention::limited({numberedEntry(1, 5), numberedEntry(2, 6), numberedEntry(3, 4)}, 2)),
        ElementsAre("02", "01"));
    EXPECT_THAT(AuditEntryRetention::limited({numberedEntry(1, 5)}, 0), IsEmpty());
    EXPECT_THAT(AuditEntryRetention::limited({numberedEntry(1, 5)}, -1), IsEmpty());
}

TEST(AuditEntryRetention, KeepsWhatWasRecordedWhileTheWriteWasUnderWay)
{
    const auto appended = numberedEntry(2, 6, 1);
    const std::vector<CleanupAuditEntry> current{
        numberedEntry(4, 8), numberedEntry(3, 6), appended, numberedEntry(7, 5), numberedEntry(1, 4)};
    const auto entries =
        AuditEntryRetention::reconciledAfterAppend({numberedEntry(2, 6, 2), numberedEntry(1, 4)}, current, appended);
    // The seventh is older than the appended one, so the log had dropped it; the third came in the same moment.
    EXPECT_THAT(lastDigits(entries), ElementsAre("04", "03", "02", "01"));
    EXPECT_EQ(entries[2].requestedItemCount, 2);
}

TEST(AuditEntryRetention, TakesFromTheLogWhatBothHave)
{
    const auto appended = numberedEntry(1, 1);
    const std::vector<CleanupAuditEntry> current{numberedEntry(2, 2, 1), appended};
    const auto entries =
        AuditEntryRetention::reconciledAfterAppend({numberedEntry(2, 2, 5), appended}, current, appended);
    EXPECT_THAT(lastDigits(entries), ElementsAre("02", "01"));
    EXPECT_EQ(entries.front().requestedItemCount, 5);
}

TEST(AuditEntryRetention, ShowsNothingOfAnAppendedEntryThatTheLogDidNotTake)
{
    const auto appended = numberedEntry(1, 1);
    EXPECT_THAT(AuditEntryRetention::reconciledAfterAppend({}, std::vector{appended}, appended), IsEmpty());
}

TEST(AuditEntryRetention, NeverShowsMoreThanAHundred)
{
    std::vector<CleanupAuditEntry> persisted;
    for (int number = 1; number <= 100; ++number) {
        persisted.push_back(numberedEntry(number, number));
    }
    const std::vector<CleanupAuditEntry> current{numberedEntry(200, 200)};
    const auto entries = AuditEntryRetention::reconciledAfterAppend(persisted, current, persisted.back());
    ASSERT_THAT(entries, SizeIs(100));
    EXPECT_EQ(lastDigits(entries).front(), "C8");
    EXPECT_EQ(lastDigits(entries).back(), "02");
}

} // namespace CleanerCore
