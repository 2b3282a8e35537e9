#include "CleanerCore/Audit/LossyCleanupAuditEntryList.h"

#include "Tests/CleanerCore/Audit/AuditFixture.h"

namespace CleanerCore {

namespace {

using namespace AuditTests;
using List = LossyCleanupAuditEntryList;

std::string repeated(std::string_view part, std::size_t count)
{
    std::string text;
    for (std::size_t index = 0; index < count; ++index) {
        text.append(part);
    }
    return text;
}

/// A sound entry, and other elements behind it.
std::string goodAnd(const CleanupAuditEntry& good, std::string_view others)
{
    return "[" + encoded(good) + "," + std::string(others) + "]";
}

/// An array that lies in `levels` others: as an element of the file, its innermost stands `levels` + 1 indices deep.
std::string nested(std::size_t levels)
{
    return repeated("[", levels + 1) + repeated("]", levels + 1);
}

std::string messageOf(std::string_view bytes)
{
    const auto list = List::read(bytes);
    return list ? "read" : list.error().message;
}

constexpr std::string_view kTooDeep = "Discarded audit JSON exceeded maximum nesting depth";
constexpr std::string_view kTooMany = "Discarded audit JSON exceeded maximum value budget";

} // namespace

TEST(LossyCleanupAuditEntryList, ReadsASoundLogStrictly)
{
    const Entries entries{entry(2), entry(1)};
    const auto list = List::read(encoded(entries));
    ASSERT_TRUE(list);
    EXPECT_EQ(list->entries, entries);
    EXPECT_EQ(list->completeness, List::Completeness::strict);
}

TEST(LossyCleanupAuditEntryList, TakesAnEmptyArrayForSound)
{
    const auto list = List::read("[]");
    ASSERT_TRUE(list);
    EXPECT_TRUE(list->entries.empty());
    EXPECT_EQ(list->completeness, List::Completeness::strict);
}

TEST(LossyCleanupAuditEntryList, SavesTheGoodElements)
{
    const auto first = entry(1);
    const auto second = entry(2);
    const auto list = List::read(
        "[null, 17, " + encoded(first) + R"(, {"id": [1, {"a": null}]}, "text", true, 1.5, )" + encoded(second) + "]");
    ASSERT_TRUE(list);
    EXPECT_EQ(list->entries, (Entries{first, second}));
    EXPECT_EQ(list->completeness, List::Completeness::lossy);
}

TEST(LossyCleanupAuditEntryList, FailsWhereNoElementIsGood)
{
    EXPECT_FALSE(List::read("[null]"));
    EXPECT_FALSE(List::read("[17, {}]"));
}

TEST(LossyCleanupAuditEntryList, FailsForWhatIsNoArray)
{
    for (const std::string_view bytes : {"{}", "17", "null", "\"[]\"", "[", "", "[]]", "[] x"}) {
        EXPECT_FALSE(List::read(bytes)) << bytes;
    }
    EXPECT_FALSE(List::read(encoded(entry())));
}

TEST(LossyCleanupAuditEntryList, LetsNullCostNothing)
{
    const auto good = entry();
    const auto list = List::read(goodAnd(good, repeated("null,", 20'000) + "[" + repeated("null,", 20'000) + "null]"));
    ASSERT_TRUE(list);
    EXPECT_EQ(list->entries, Entries{good});
}

TEST(LossyCleanupAuditEntryList, LetsEveryOtherValueCostOneUnit)
{
    EXPECT_EQ(messageOf(goodAnd(entry(), repeated("17,", 9'999) + "17")), "read");
    EXPECT_EQ(messageOf(goodAnd(entry(), repeated("17,", 10'000) + "17")), kTooMany);
}

TEST(LossyCleanupAuditEntryList, CountsValuesOfEveryLevelAgainstOneBudget)
{
    // An array, an object in it and a number in that: three units.
    EXPECT_EQ(messageOf(goodAnd(entry(), repeated(R"([{"a":1}],)", 3'333) + "17")), "read");
    EXPECT_EQ(messageOf(goodAnd(entry(), repeated(R"([{"a":1}],)", 3'333) + "17,17")), kTooMany);
}

TEST(LossyCleanupAuditEntryList, EndsTheSalvageAtAnElementThatIsTooDeep)
{
    EXPECT_EQ(messageOf(goodAnd(entry(), nested(63))), "read");
    EXPECT_EQ(messageOf(goodAnd(entry(), nested(64))), kTooDeep);
    EXPECT_EQ(messageOf(goodAnd(entry(), repeated(R"({"a":)", 64) + "1" + repeated("}", 64))), kTooDeep);
    EXPECT_EQ(messageOf(goodAnd(entry(), repeated(R"({"a":)", 63) + "1" + repeated("}", 63))), "read");
}

TEST(LossyCleanupAuditEntryList, TellsOfTheDepthBeforeTheBudget)
{
    EXPECT_EQ(messageOf(goodAnd(entry(), repeated("17,", 10'000 - 64) + nested(64))), kTooDeep);
}

TEST(LossyCleanupAuditEntryList, LetsASoundEntryHoldAnythingUnderUnknownKeys)
{
    const auto good = entry();
    auto text = encoded(good);
    text.insert(1, "\"newer\" : " + nested(200) + ", \"many\" : [" + repeated("1,", 20'000) + "1],");
    const auto list = List::read("[" + text + "]");
    ASSERT_TRUE(list);
    EXPECT_EQ(list->entries, Entries{good});
    EXPECT_EQ(list->completeness, List::Completeness::strict);
}

TEST(LossyCleanupAuditEntryList, TakesAnUnknownWordForABadElement)
{
    const auto good = entry();
    for (const std::string_view word : {"\"clean\"", "\"cleanupDashboard\"", "\"moveToTrash\""}) {
        auto newer = encoded(entry());
        newer.replace(newer.rfind(word), word.size(), "\"newerWord\"");
        const auto list = List::read("[" + newer + "," + encoded(good) + "]");
        ASSERT_TRUE(list) << word;
        EXPECT_EQ(list->entries, Entries{good}) << word;
        EXPECT_EQ(list->completeness, List::Completeness::lossy) << word;
    }
}

TEST(LossyCleanupAuditEntryList, ReadsCleanedItemsOfAWrongTypeAsNone)
{
    auto bare = entry();
    bare.cleanedItems.clear();
    constexpr std::string_view none = "\"cleanedItems\" : [\n\n  ]";
    for (const std::string_view wrong : {"17", "\"items\"", "{}", "true", "null", "[17, {}]"}) {
        auto text = encoded(bare);
        ASSERT_NE(text.find(none), std::string::npos);
        text.replace(text.find(none), none.size(), "\"cleanedItems\" : " + std::string(wrong));
        const auto list = List::read("[" + text + "]");
        ASSERT_TRUE(list) << wrong;
        EXPECT_EQ(list->entries, Entries{bare}) << wrong;
        EXPECT_EQ(list->completeness, List::Completeness::strict) << wrong;
    }
}

TEST(LossyCleanupAuditEntryList, TakesAMissingListOfPathsOrReasonsForABadElement)
{
    for (const std::string_view key : {"\"samplePaths\"", "\"failureReasons\""}) {
        auto text = encoded(entry());
        text.replace(text.find(key), key.size(), "\"elsewhere\"");
        const auto list = List::read("[" + text + "," + encoded(entry()) + "]");
        ASSERT_TRUE(list);
        EXPECT_EQ(list->entries.size(), 1) << key;
    }
}

TEST(LossyCleanupAuditEntryList, DropsAnElementThatIsSplicedFromTwo)
{
    const auto good = entry();
    const auto whole = encoded(entry());
    const auto spliced = whole.substr(0, whole.find("\"source\"")) + whole.substr(whole.find("\"mode\""));
    const auto list = List::read(goodAnd(good, spliced));
    ASSERT_TRUE(list);
    EXPECT_EQ(list->entries, Entries{good});
    EXPECT_EQ(list->completeness, List::Completeness::lossy);
}

TEST(LossyCleanupAuditEntryList, TrustsNoItemThatIsSplicedFromTwo)
{
    auto text = encoded(entry(0, 3));
    const auto start = text.find("\"sizeBytes\"");
    const auto end = text.find("\"displayName\"", start);
    text.erase(start, end - start);
    const auto list = List::read("[" + text + "]");
    ASSERT_TRUE(list);
    ASSERT_EQ(list->entries.size(), 1);
    EXPECT_EQ(list->entries[0].cleanedItems, std::vector{entry(0, 3).cleanedItems[2]});
    EXPECT_EQ(list->completeness, List::Completeness::lossy);
}

TEST(LossyCleanupAuditEntryList, IsNotFelledByDepthOrSize)
{
    constexpr std::size_t limit = CleanupAuditStore::kMaximumBytes;
    for (const auto& bytes : {std::string(limit, '['), repeated("[[],", limit / 4), repeated(R"({"a":)", limit / 5),
             "[" + repeated("1,", limit / 2 - 1) + "1]", "[" + repeated("{},", limit / 3 - 1) + "{}]",
             "[{\"cleanedItems\":[" + repeated("{},", limit / 3 - 10) + "{}]}]", std::string(limit, '"')}) {
        EXPECT_FALSE(List::read(bytes));
    }
}

} // namespace CleanerCore
