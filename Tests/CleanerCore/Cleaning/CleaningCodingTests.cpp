#include "CleanerCore/Cleaning/CleaningCoding.h"

#include "Tests/CleanerCore/Audit/AuditFixture.h"

namespace CleanerCore {

namespace {

using namespace AuditTests;
using Platform::decodeJSON;

std::vector<std::string> keysOf(const auto& value)
{
    std::vector<std::string> keys;
    for (const auto& member : membersOf(encoded(value))) {
        keys.push_back(member.key);
    }
    return keys;
}

using Keys = std::vector<std::string>;

} // namespace

TEST(CleaningCoding, ReadsBackACleanResult)
{
    CleanResult result;
    result.cleanedItems = {
        trashedItem("/home/ada/a b"), CleanedItem{.candidate = loggedCandidate("/home/ada/deleted")}};
    result.failedItems = {{loggedCandidate("/home/ada/busy"), "Access denied"}};
    result.wasCancelled = true;
    EXPECT_EQ(decodeJSON<CleanResult>(encoded(result)), result);
}

TEST(CleaningCoding, ReadsBackARestoreResult)
{
    RestoreResult result;
    result.restoredItems = {{trashedItem("/home/ada/a"), FileURL::folder("/home/ada/a")}};
    result.failedItems = {{trashedItem("/home/ada/b"), "gone"}};
    EXPECT_EQ(decodeJSON<RestoreResult>(encoded(result)), result);
}

TEST(CleaningCoding, NamesTheKeysAfterTheFields)
{
    EXPECT_EQ(keysOf(trashedItem("/a")),
        (Keys{"candidate", "destinationURL", "restoreSourceIdentity", "restoreSourceRootURL"}));
    EXPECT_EQ(keysOf(FailedCleanItem{loggedCandidate("/a"), ""}), (Keys{"candidate", "reason"}));
    EXPECT_EQ(keysOf(CleanResult{}), (Keys{"cleanedItems", "failedItems", "wasCancelled"}));
    EXPECT_EQ(keysOf(RestoredCleanedItem{trashedItem("/a"), {}}), (Keys{"cleanedItem", "restoredURL"}));
    EXPECT_EQ(keysOf(FailedRestoreItem{trashedItem("/a"), ""}), (Keys{"cleanedItem", "reason"}));
    EXPECT_EQ(keysOf(RestoreResult{}), (Keys{"failedItems", "restoredItems", "wasCancelled"}));
}

TEST(CleaningCoding, LeavesOutWhatACleanedItemDoesNotHave)
{
    const CleanedItem bare{.candidate = loggedCandidate("/a")};
    EXPECT_EQ(keysOf(bare), Keys{"candidate"});
    EXPECT_EQ(decodeJSON<CleanedItem>(encoded(bare)), bare);
}

TEST(CleaningCoding, RefusesACleanedItemWithoutItsCandidate)
{
    EXPECT_FALSE(decodeJSON<CleanedItem>(R"({"destinationURL":"file:///a"})"));
}

TEST(CleaningCoding, WritesAReasonThatIsNotUTF8Escaped)
{
    const auto read = decodeJSON<FailedCleanItem>(encoded(FailedCleanItem{loggedCandidate("/a"), "caf\xE9"}));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->reason, "caf\\xE9");
}

TEST(CleanResult, SumsUpWhatWasCleanedAndNothingElse)
{
    CleanResult result;
    EXPECT_EQ(result.reclaimedBytes(), 0);
    result.cleanedItems = {trashedItem("/a", 3), trashedItem("/b", 4)};
    result.failedItems = {{loggedCandidate("/c", 100), ""}};
    EXPECT_EQ(result.reclaimedBytes(), 7);
}

} // namespace CleanerCore
