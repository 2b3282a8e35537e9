#include "CleanerCore/Audit/CleanupAuditEntry.h"

#include "Tests/CleanerCore/Audit/AuditFixture.h"

#include <limits>

namespace CleanerCore {

namespace {

using namespace AuditTests;

CleanResult resultOf(int cleaned, int failed)
{
    CleanResult result;
    for (int index = 0; index < cleaned; ++index) {
        result.cleanedItems.push_back(trashedItem(fmt::format("/home/ada/c{}", index), index + 1));
    }
    for (int index = 0; index < failed; ++index) {
        result.failedItems.push_back(
            {loggedCandidate(fmt::format("/home/ada/f{}", index)), fmt::format("reason {}", index)});
    }
    return result;
}

std::vector<std::string> numbered(std::string_view word, int count)
{
    std::vector<std::string> texts;
    for (int index = 0; index < count; ++index) {
        texts.push_back(fmt::format("{}{}", word, index));
    }
    return texts;
}

} // namespace

TEST(CleanupAuditEntry, TellsOfAClean)
{
    auto result = resultOf(2, 1);
    result.wasCancelled = true;
    const std::vector requested{
        loggedCandidate("/home/ada/c0", 1), loggedCandidate("/home/ada/c1", 2), loggedCandidate("/home/ada/f0", 40)};
    const auto made = CleanupAuditEntry::clean(
        result, CleaningMode::moveToTrash, requested, CleanupAuditSource::macInsights, Date{5});
    EXPECT_EQ(made.occurredAt, Date{5});
    EXPECT_EQ(made.operation, CleanupAuditOperation::clean);
    EXPECT_EQ(made.source, CleanupAuditSource::macInsights);
    EXPECT_EQ(made.mode, CleaningMode::moveToTrash);
    EXPECT_EQ(made.requestedItemCount, 3);
    EXPECT_EQ(made.requestedBytes, 43);
    EXPECT_EQ(made.succeededItemCount, 2);
    EXPECT_EQ(made.failedItemCount, 1);
    EXPECT_EQ(made.affectedBytes, 3);
    EXPECT_TRUE(made.wasCancelled);
    EXPECT_EQ(made.samplePaths, (std::vector<std::string>{"/home/ada/c0", "/home/ada/c1"}));
    EXPECT_EQ(made.failureReasons, std::vector<std::string>{"reason 0"});
    EXPECT_EQ(made.cleanedItems, result.cleanedItems);
}

TEST(CleanupAuditEntry, KeepsTheFirstOfManyAndCountsAll)
{
    const auto result = resultOf(300, 7);
    const auto made =
        CleanupAuditEntry::clean(result, CleaningMode::moveToTrash, {}, CleanupAuditSource::cleanupDashboard, Date{});
    EXPECT_EQ(made.succeededItemCount, 300);
    EXPECT_EQ(made.failedItemCount, 7);
    EXPECT_EQ(made.affectedBytes, 300 * 301 / 2);
    EXPECT_EQ(made.samplePaths, numbered("/home/ada/c", 5));
    EXPECT_EQ(made.failureReasons, numbered("reason ", 5));
    ASSERT_EQ(made.cleanedItems.size(), 20);
    EXPECT_EQ(made.cleanedItems.back(), result.cleanedItems[19]);
}

TEST(CleanupAuditEntry, TellsOfARestore)
{
    RestoreResult result;
    std::vector<CleanedItem> requested;
    for (int index = 0; index < 7; ++index) {
        requested.push_back(trashedItem(fmt::format("/home/ada/r{}", index), 100));
        result.restoredItems.push_back({requested.back(), FileURL(fmt::format("/home/ada/r{}", index))});
    }
    requested.push_back(trashedItem("/home/ada/gone", 11));
    result.failedItems.push_back({requested.back(), "missing"});
    const auto made = CleanupAuditEntry::restore(result, requested, CleanupAuditSource::cleanupDashboard, Date{9});
    EXPECT_EQ(made.occurredAt, Date{9});
    EXPECT_EQ(made.operation, CleanupAuditOperation::restore);
    EXPECT_EQ(made.mode, std::nullopt);
    EXPECT_EQ(made.requestedItemCount, 8);
    EXPECT_EQ(made.requestedBytes, 711);
    EXPECT_EQ(made.succeededItemCount, 7);
    EXPECT_EQ(made.failedItemCount, 1);
    EXPECT_EQ(made.affectedBytes, 700);
    EXPECT_FALSE(made.wasCancelled);
    EXPECT_EQ(made.samplePaths, numbered("/home/ada/r", 5));
    EXPECT_EQ(made.failureReasons, std::vector<std::string>{"missing"});
    EXPECT_TRUE(made.cleanedItems.empty());
}

TEST(CleanupAuditEntry, GetsAnIdOfItsOwn)
{
    const auto first = CleanupAuditEntry::restore({}, {}, CleanupAuditSource::cleanupDashboard, Date{});
    const auto second = CleanupAuditEntry::restore({}, {}, CleanupAuditSource::cleanupDashboard, Date{});
    EXPECT_NE(first.id, second.id);
    EXPECT_NE(first.id, UUID());
}

TEST(CleanupAuditEntryDeathTest, EndsTheProgramWhereSizesOverflow)
{
    const std::vector huge{loggedCandidate("/a", std::numeric_limits<std::int64_t>::max()), loggedCandidate("/b", 1)};
    EXPECT_DEATH((void)CleanupAuditEntry::clean(
                     {}, CleaningMode::moveToTrash, huge, CleanupAuditSource::cleanupDashboard, Date{}),
        "overflowed");
}

TEST(CleanupAuditEntry, KeepsOnlyWhatMayBeStored)
{
    auto full = entry(0, 2);
    full.samplePaths = {"/home/ada/.cache/item-0"};
    full.failureReasons = {"Access denied", "Could not move ~/Documents/report.pdf"};
    full.cleanedItems.front().destinationURL.reset();
    auto expected = full;
    expected.samplePaths.clear();
    expected.failureReasons = {"Access denied", "<text:audit-failure-reason-1>"};
    expected.cleanedItems.erase(expected.cleanedItems.begin());
    EXPECT_EQ(full.storageSafeForAuditPersistence(), expected);
}

TEST(CleanupAuditEntry, CutsListsThatWereMadeTooLongBeforeStoring)
{
    auto full = entry(0, 25);
    full.failureReasons = numbered("reason ", 9);
    full.cleanedItems.front().destinationURL.reset();
    const auto stored = full.storageSafeForAuditPersistence();
    EXPECT_EQ(stored.failureReasons, numbered("reason ", 5));
    ASSERT_EQ(stored.cleanedItems.size(), 20);
    EXPECT_EQ(stored.cleanedItems.front(), full.cleanedItems[1]);
    EXPECT_EQ(stored.cleanedItems.back(), full.cleanedItems[20]);
}

TEST(CleanupAuditEntry, KeepsNoItemsOfAPermanentDeletionNorOfARestore)
{
    auto deleted = entry();
    deleted.mode = CleaningMode::deletePermanently;
    EXPECT_TRUE(deleted.storageSafeForAuditPersistence().cleanedItems.empty());
    auto restored = entry();
    restored.operation = CleanupAuditOperation::restore;
    EXPECT_TRUE(restored.storageSafeForAuditPersistence().cleanedItems.empty());
}

TEST(CleanupAuditEntry, KeepsTheItemsOfACleanOfUnknownMode)
{
    auto unknown = entry();
    unknown.mode.reset();
    EXPECT_EQ(unknown.storageSafeForAuditPersistence().cleanedItems, unknown.cleanedItems);
}

TEST(CleanupAuditEntry, GivesTheSameReasonTheSameTokenWithinOneWrite)
{
    ReportExportRedactionContext context;
    auto first = entry();
    first.failureReasons = {"Could not move /a/b", "Could not move /a/c"};
    auto second = entry();
    second.failureReasons = {"Could not move /a/c"};
    EXPECT_EQ(first.storageSafe(context).failureReasons,
        (std::vector<std::string>{"<text:audit-failure-reason-1>", "<text:audit-failure-reason-2>"}));
    EXPECT_EQ(second.storageSafe(context).failureReasons, std::vector<std::string>{"<text:audit-failure-reason-2>"});
}

TEST(CleanupAuditEntry, IsCutToItsBoundsWhenItIsRead)
{
    auto longer = entry(0, 25);
    longer.samplePaths = numbered("/s", 9);
    longer.failureReasons = numbered("r", 9);
    longer.succeededItemCount = 300;
    const auto read = Platform::decodeJSON<CleanupAuditEntry>(encoded(longer));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->samplePaths, numbered("/s", 5));
    EXPECT_EQ(read->failureReasons, numbered("r", 5));
    EXPECT_EQ(read->cleanedItems, std::vector(longer.cleanedItems.begin(), longer.cleanedItems.begin() + 20));
    EXPECT_EQ(read->succeededItemCount, 300);
}

TEST(CleanupAuditEntry, StandsInJSONUnderTheNamesOfItsFields)
{
    CleanupAuditEntry plain{.id = *UUID::fromString("9b6c2d0e-7a41-4e53-8e11-0c6e7c5a2f10"), .occurredAt = Date{0.5}};
    plain.failureReasons = {"a/b"};
    EXPECT_EQ(encoded(plain), R"({
  "affectedBytes" : 0,
  "cleanedItems" : [

  ],
  "failedItemCount" : 0,
  "failureReasons" : [
    "a\/b"
  ],
  "id" : "9B6C2D0E-7A41-4E53-8E11-0C6E7C5A2F10",
  "occurredAt" : 0.5,
  "operation" : "clean",
  "requestedBytes" : 0,
  "requestedItemCount" : 0,
  "samplePaths" : [

  ],
  "source" : "cleanupDashboard",
  "succeededItemCount" : 0,
  "wasCancelled" : false
})");
    plain.mode = CleaningMode::deletePermanently;
    EXPECT_NE(encoded(plain).find("\"mode\" : \"deletePermanently\","), std::string::npos);
}

TEST(CleanupAuditEntry, ReadsEverySource)
{
    auto plain = entry();
    for (const auto source : Platform::allCases<CleanupAuditSource>()) {
        plain.source = source;
        const auto read = Platform::decodeJSON<CleanupAuditEntry>(encoded(plain));
        ASSERT_TRUE(read);
        EXPECT_EQ(*read, plain);
    }
}

TEST(CleanupAuditEntry, IsNotReadWithoutAnyOfItsRequiredKeys)
{
    const auto whole = membersOf(encoded(entry()));
    std::size_t optionalKeys = 0;
    for (const auto& missing : whole) {
        auto members = whole;
        std::erase_if(members, [&](const auto& member) { return member.key == missing.key; });
        const auto read = Platform::decodeJSON<CleanupAuditEntry>(Platform::JSONValue(std::move(members)));
        const bool isOptional = missing.key == "mode" || missing.key == "cleanedItems";
        EXPECT_EQ(read.has_value(), isOptional) << missing.key;
        optionalKeys += isOptional ? 1 : 0;
    }
    EXPECT_EQ(optionalKeys, 2);
}

TEST(CleanupAuditEntry, EscapesAReasonThatIsNotUTF8)
{
    auto odd = entry();
    odd.failureReasons = {"caf\xE9"};
    const auto read = Platform::decodeJSON<CleanupAuditEntry>(encoded(odd));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->failureReasons, std::vector<std::string>{"caf\\xE9"});
}

TEST(CleanupAuditEntry, LeavesOutOnlyTheCleanedItemsThatItCannotRead)
{
    auto text = encoded(entry(0, 3));
    const auto second = text.find("item-1");
    text.replace(text.rfind("userCaches", second), 10, "newerKinds");
    const auto read = Platform::decodeJSON<CleanupAuditEntry>(text);
    ASSERT_TRUE(read);
    ASSERT_EQ(read->cleanedItems.size(), 2);
    EXPECT_EQ(read->cleanedItems[0], entry(0, 3).cleanedItems[0]);
    EXPECT_EQ(read->cleanedItems[1], entry(0, 3).cleanedItems[2]);
}

} // namespace CleanerCore
