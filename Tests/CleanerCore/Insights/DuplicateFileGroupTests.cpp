#include "CleanerCore/Insights/DuplicateCoding.h"
#include "CleanerCore/Insights/DuplicateFileGroup.h"
#include "CleanerCore/Insights/DuplicateKeeperChoice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace CleanerCore {
namespace {

using Platform::Date;
using Platform::FileURL;
using testing::ElementsAre;
using enum DuplicateKeeperRecommendationReason;

const std::string kHash(64, 'a');

FileInsight copyAt(std::string_view path, std::optional<Date> date = Date{100}, std::int64_t size = 10)
{
    return FileInsight({
        .url = FileURL(path),
        .sizeBytes = size,
        .lastModified = date,
        .kind = FileInsightKind::duplicate,
        .detail = "Duplicate set",
    });
}

std::vector<std::string> pathsOf(const DuplicateFileGroup& group)
{
    std::vector<std::string> paths;
    for (const auto& file : group.files) {
        paths.push_back(file.url.path());
    }
    return paths;
}

std::vector<DuplicateKeeperRecommendationReason> reasonsOf(const std::vector<FileInsight>& files)
{
    return DuplicateFileGroup(kHash, 10, files).keeperRecommendation()->reasons;
}

TEST(DuplicateKeeperChoice, RanksPlacesByTheFoldersOfThePath)
{
    EXPECT_EQ(keeperLocationRank(FileURL("/home/a/Documents/x")), 0);
    EXPECT_EQ(keeperLocationRank(FileURL("/home/a/Pictures/x")), 1);
    EXPECT_EQ(keeperLocationRank(FileURL("/home/a/Movies/x")), 1);
    EXPECT_EQ(keeperLocationRank(FileURL("/home/a/Music/x")), 1);
    EXPECT_EQ(keeperLocationRank(FileURL("/home/a/Desktop/x")), 2);
    EXPECT_EQ(keeperLocationRank(FileURL("/home/a/Downloads/x")), 3);
    EXPECT_EQ(keeperLocationRank(FileURL("/home/a/Library/x")), 4);
    EXPECT_EQ(keeperLocationRank(FileURL("/home/a/x")), 2);
}

TEST(DuplicateKeeperChoice, LooksForExactNamesOnly)
{
    EXPECT_EQ(keeperLocationRank(FileURL("/home/a/documents/x")), 2);
    EXPECT_EQ(keeperLocationRank(FileURL("/home/a/Documents2/x")), 2);
    EXPECT_EQ(keeperLocationRank(FileURL("/home/a/My Library/x")), 2);
}

TEST(DuplicateKeeperChoice, RanksALibraryInsideDocumentsAsADocument)
{
    EXPECT_EQ(keeperLocationRank(FileURL("/home/a/Library/Documents/x")), 0);
    EXPECT_EQ(keeperLocationRank(FileURL("/home/a/Documents/Library/x")), 0);
    EXPECT_EQ(keeperLocationRank(FileURL("/home/a/Downloads/Music/x")), 1);
}

TEST(DuplicateKeeperChoice, PrefersAFileOutsideTheNamedFoldersToDownloads)
{
    EXPECT_TRUE(prefersKeeper(copyAt("/home/a/z", Date{900}), copyAt("/home/a/Downloads/a", Date{1})));
    EXPECT_FALSE(prefersKeeper(copyAt("/home/a/Downloads/a", Date{1}), copyAt("/home/a/z", Date{900})));
}

TEST(DuplicateKeeperChoice, CountsAMissingDateAsTheYoungest)
{
    EXPECT_TRUE(prefersKeeper(copyAt("/b", Date{1e9}), copyAt("/a", std::nullopt)));
    EXPECT_FALSE(prefersKeeper(copyAt("/a", std::nullopt), copyAt("/b", Date{1e9})));
    EXPECT_TRUE(prefersKeeper(copyAt("/a", std::nullopt), copyAt("/b", std::nullopt)));
    EXPECT_THAT(reasonsOf({copyAt("/a", std::nullopt), copyAt("/b", Date{5})}), ElementsAre(olderModificationDate));
}

TEST(DuplicateKeeperChoice, PrefersNeitherOfTwoThatAreEqual)
{
    EXPECT_FALSE(prefersKeeper(copyAt("/a"), copyAt("/a")));
}

TEST(DuplicateFileGroup, KeepsTheCopyInDocumentsOfThree)
{
    const DuplicateFileGroup group(kHash, 10,
        {copyAt("/home/a/Library/Application Support/x", Date{1}), copyAt("/home/a/Downloads/x", Date{2}),
            copyAt("/home/a/Documents/x", Date{3})});
    EXPECT_EQ(group.keeper()->url.path(), "/home/a/Documents/x");
    EXPECT_EQ(group.extraCopies().size(), 2U);
    const auto recommendation = group.keeperRecommendation();
    ASSERT_TRUE(recommendation);
    EXPECT_EQ(recommendation->id(), kHash);
    EXPECT_EQ(recommendation->groupID, kHash);
    EXPECT_EQ(recommendation->keeperID, "duplicate:/home/a/Documents/x");
    EXPECT_EQ(recommendation->keeperPath, "/home/a/Documents/x");
    EXPECT_EQ(recommendation->duplicateCount, 3);
    EXPECT_THAT(recommendation->reasons, ElementsAre(preferredLocation));
}

TEST(DuplicateFileGroup, SaysThatTheOlderOfTwoDownloadsIsKept)
{
    EXPECT_THAT(reasonsOf({copyAt("/home/a/Downloads/a", Date{1}), copyAt("/home/a/Downloads/b", Date{2})}),
        ElementsAre(olderModificationDate));
}

TEST(DuplicateFileGroup, BreaksTheTieOfPlaceAndDateByPath)
{
    const DuplicateFileGroup group(kHash, 10, {copyAt("/home/a/b"), copyAt("/home/a/a")});
    EXPECT_EQ(group.keeper()->url.path(), "/home/a/a");
    EXPECT_THAT(group.keeperRecommendation()->reasons, ElementsAre(deterministicPathTieBreak));
}

TEST(DuplicateFileGroup, NamesEveryReasonInItsOrder)
{
    EXPECT_THAT(reasonsOf({copyAt("/Documents/a", Date{1}), copyAt("/Documents/b", Date{1}),
                    copyAt("/Documents/c", Date{2}), copyAt("/Downloads/a", Date{1})}),
        ElementsAre(preferredLocation, olderModificationDate, deterministicPathTieBreak));
}

TEST(DuplicateFileGroup, FallsBackToThePathWhereNothingSpeaksForTheKeeper)
{
    // As a stored group may have them: not in the order that a new one would be put in.
    const auto keeper = copyAt("/Downloads/b", Date{9});
    const std::vector files{keeper, copyAt("/Documents/a", Date{1}), copyAt("/Downloads/a", Date{9})};
    EXPECT_THAT(keeperRecommendationReasons(keeper, files), ElementsAre(deterministicPathTieBreak));
}

TEST(DuplicateFileGroup, RecommendsNothingForFewerThanTwoFiles)
{
    EXPECT_EQ(DuplicateFileGroup().keeper(), nullptr);
    EXPECT_TRUE(DuplicateFileGroup().extraCopies().empty());
    EXPECT_FALSE(DuplicateFileGroup().keeperRecommendation());
    EXPECT_FALSE(DuplicateFileGroup(kHash, 1, {copyAt("/a")}).keeperRecommendation());
}

TEST(DuplicateFileGroup, CountsWhatTheExtraCopiesHoldOnTheDisk)
{
    const DuplicateFileGroup group(
        kHash, 1000, {copyAt("/a", Date{1}, 4096), copyAt("/b", Date{2}, 512), copyAt("/c", Date{3}, 0)});
    EXPECT_EQ(group.wastedBytes(), 512);
    EXPECT_EQ(group.sizeBytes, 1000);
    EXPECT_EQ(DuplicateFileGroup().wastedBytes(), 0);
}

TEST(DuplicateFileGroup, StaysAtTheLimitWithSizesFromOutside)
{
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    const DuplicateFileGroup group(
        kHash, most, {copyAt("/a", Date{1}, most), copyAt("/b", Date{2}, most), copyAt("/c", Date{3}, most)});
    EXPECT_EQ(group.wastedBytes(), most);
}

TEST(DuplicateFileGroup, HasNoNegativeSize)
{
    EXPECT_EQ(DuplicateFileGroup(kHash, -1, {}).sizeBytes, 0);
    const auto read = Platform::decodeJSON<DuplicateFileGroup>(R"({"id": "a", "sizeBytes": -1, "files": []})");
    ASSERT_TRUE(read);
    EXPECT_EQ(read->sizeBytes, 0);
}

TEST(DuplicateFileGroup, KeepsTheStoredOrderOfItsFiles)
{
    DuplicateFileGroup group(kHash, 10, {copyAt("/home/a/Documents/x"), copyAt("/home/a/Downloads/x")});
    std::swap(group.files.front(), group.files.back());
    const auto json = Platform::encodeJSON(group);
    ASSERT_TRUE(json);
    const auto read = Platform::decodeJSON<DuplicateFileGroup>(*json);
    ASSERT_TRUE(read);
    EXPECT_EQ(*read, group);
    EXPECT_THAT(pathsOf(*read), ElementsAre("/home/a/Downloads/x", "/home/a/Documents/x"));
}

TEST(DuplicateFileGroup, NeedsEveryKey)
{
    EXPECT_FALSE(Platform::decodeJSON<DuplicateFileGroup>(R"({"sizeBytes": 1, "files": []})"));
    EXPECT_FALSE(Platform::decodeJSON<DuplicateFileGroup>(R"({"id": "a", "files": []})"));
    EXPECT_FALSE(Platform::decodeJSON<DuplicateFileGroup>(R"({"id": "a", "sizeBytes": 1})"));
}

TEST(DuplicateKeeperRecommendation, SurvivesJSON)
{
    const auto recommendation = DuplicateFileGroup(kHash, 10, {copyAt("/a"), copyAt("/b")}).keeperRecommendation();
    const auto json = Platform::encodeJSON(*recommendation);
    ASSERT_TRUE(json);
    EXPECT_THAT(*json, testing::HasSubstr("\"deterministicPathTieBreak\""));
    EXPECT_EQ(Platform::decodeJSON<DuplicateKeeperRecommendation>(*json), *recommendation);
}

TEST(DuplicateKeeperRecommendation, ListsItsReasonsInTheirOrder)
{
    EXPECT_THAT(Platform::allCases<DuplicateKeeperRecommendationReason>(),
        ElementsAre(preferredLocation, olderModificationDate, deterministicPathTieBreak));
    EXPECT_EQ(Platform::rawValue(preferredLocation), "preferredLocation");
    EXPECT_EQ(Platform::rawValue(olderModificationDate), "olderModificationDate");
}

} // namespace
} // namespace CleanerCore
