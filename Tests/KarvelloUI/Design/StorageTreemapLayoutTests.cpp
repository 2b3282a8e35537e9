#include "KarvelloUI/Design/StorageTreemapLayout.h"
#include "Tests/KarvelloUI/Design/TreemapFixture.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>
#include <unordered_set>

namespace KarvelloUI {

namespace {

using Cells = std::vector<StorageTreemapCell>;
using Split = StorageTreemapSplit;
using TreemapFixture::items;

constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();

std::vector<std::string> names(const Cells& cells)
{
    std::vector<std::string> found;
    for (const StorageTreemapCell& cell : cells) {
        found.push_back(cell.item.displayName);
    }
    return found;
}

std::size_t splitOf(std::initializer_list<std::int64_t> sizes)
{
    auto list = items(sizes);
    // Past the constructor, which would take a negative size as 0.
    std::size_t index = 0;
    for (const std::int64_t size : sizes) {
        list[index++].sizeBytes = size;
    }
    return StorageTreemapLayout::balancedSplitIndex(list);
}

} // namespace

TEST(StorageTreemapLayout, GivesNoCellsForAnEmptyListOrOnlyItemsOfSizeZero)
{
    EXPECT_TRUE(StorageTreemapLayout::cells({}).empty());
    EXPECT_TRUE(StorageTreemapLayout::cells(items({0, 0, 0})).empty());
}

TEST(StorageTreemapLayout, LeavesOutWhatHasNotEvenOneByte)
{
    EXPECT_EQ(names(StorageTreemapLayout::cells(items({0, 1, 0}))), std::vector<std::string>{"Folder 1"});
}

TEST(StorageTreemapLayout, FillsTheUnitRectangleWithOneItem)
{
    const Cells cells = StorageTreemapLayout::cells(items({7}));
    ASSERT_EQ(cells.size(), 1U);
    EXPECT_EQ(cells[0].rect, (UnitRect{.left = 0, .top = 0, .right = 1, .bottom = 1}));
    EXPECT_EQ(cells[0].item, items({7})[0]);
}

TEST(StorageTreemapLayout, SplitsTwoEqualItemsAtHalfTheWidth)
{
    const Cells cells = StorageTreemapLayout::cells(items({4, 4}));
    ASSERT_EQ(cells.size(), 2U);
    EXPECT_EQ(cells[0].rect, (UnitRect{.left = 0, .top = 0, .right = 0.5, .bottom = 1}));
    EXPECT_EQ(cells[1].rect, (UnitRect{.left = 0.5, .top = 0, .right = 1, .bottom = 1}));
}

TEST(StorageTreemapLayout, StacksTheTwoSmallHalvesBesideTheLargeItem)
{
    const Cells cells = StorageTreemapLayout::cells(items({90, 5, 5}));
    ASSERT_EQ(cells.size(), 3U);
    EXPECT_EQ(cells[0].rect, (UnitRect{.left = 0, .top = 0, .right = 0.9, .bottom = 1}));
    EXPECT_EQ(cells[1].rect, (UnitRect{.left = 0.9, .top = 0, .right = 1, .bottom = 0.5}));
    EXPECT_EQ(cells[2].rect, (UnitRect{.left = 0.9, .top = 0.5, .right = 1, .bottom = 1}));
}

TEST(StorageTreemapLayout, ShowsTheLargestFirstAndEqualSizesInTheirOrder)
{
    EXPECT_EQ(names(StorageTreemapLayout::cells(items({3, 5, 3, 9, 5, 3}))),
        (std::vector<std::string>{"Folder 3", "Folder 1", "Folder 4", "Folder 0", "Folder 2", "Folder 5"}));
}

TEST(StorageTreemapLayout, AlternatesTheAxisWithEveryLevel)
{
    const Cells cells = StorageTreemapLayout::cells(items({1, 1, 1, 1, 1, 1, 1, 1}));
    ASSERT_EQ(cells.size(), 8U);
    for (const StorageTreemapCell& cell : cells) {
        EXPECT_EQ(cell.rect.width(), 0.25);
        EXPECT_EQ(cell.rect.height(), 0.5);
    }
    EXPECT_EQ(cells[1].rect, (UnitRect{.left = 0.25, .top = 0, .right = 0.5, .bottom = 0.5}));
    EXPECT_EQ(cells[2].rect, (UnitRect{.left = 0, .top = 0.5, .right = 0.25, .bottom = 1}));
}

TEST(StorageTreemapLayout, DividesTheHeightFirstWhenToldSo)
{
    const UnitRect rect{.left = 0.5, .top = 0, .right = 1, .bottom = 0.5};
    const Cells cells = StorageTreemapLayout::layout(items({3, 1}), rect, Split::vertical);
    ASSERT_EQ(cells.size(), 2U);
    EXPECT_EQ(cells[0].rect, (UnitRect{.left = 0.5, .top = 0, .right = 1, .bottom = 0.375}));
    EXPECT_EQ(cells[1].rect, (UnitRect{.left = 0.5, .top = 0.375, .right = 1, .bottom = 0.5}));
}

TEST(StorageTreemapLayout, KeepsTheGivenOrderBelowTheSorting)
{
    const Cells cells = StorageTreemapLayout::layout(items({1, 9, 2}), UnitRect{}, Split::horizontal);
    EXPECT_EQ(names(cells), (std::vector<std::string>{"Folder 0", "Folder 1", "Folder 2"}));
}

TEST(StorageTreemapLayout, GivesNothingForARectangleWithoutArea)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const UnitRect& rect : {UnitRect{.left = 0.5, .top = 0, .right = 0.5, .bottom = 1},
             UnitRect{.left = 0, .top = 1, .right = 1, .bottom = 1},
             UnitRect{.left = nan, .top = 0, .right = 1, .bottom = 1}}) {
        EXPECT_TRUE(StorageTreemapLayout::layout(items({1, 2}), rect, Split::horizontal).empty());
        EXPECT_TRUE(StorageTreemapLayout::layout(items({1}), rect, Split::horizontal).empty());
    }
}

TEST(StorageTreemapLayout, GivesAllThePlaceToThePartThatHasASize)
{
    const Cells cells = StorageTreemapLayout::layout(items({0, 0, 8}), UnitRect{}, Split::horizontal);
    EXPECT_EQ(names(cells), std::vector<std::string>{"Folder 2"});
    EXPECT_EQ(cells[0].rect, UnitRect{});
}

TEST(StorageTreemapLayout, HasNoSliverForAnItemThatIsNothingBesideTheOthers)
{
    // The first takes all that a number can tell: in a rectangle whose width is no round number as well.
    for (const UnitRect& rect : {UnitRect{}, UnitRect{.left = 0.1, .top = 0, .right = 0.7, .bottom = 1}}) {
        const Cells cells = StorageTreemapLayout::layout(items({kMost, 1}), rect, Split::horizontal);
        ASSERT_EQ(cells.size(), 1U);
        EXPECT_EQ(cells[0].rect, rect);
    }
}

TEST(StorageTreemapLayout, KeepsTheProportionsOfSizesThatSumUpBeyond64Bits)
{
    const Cells cells = StorageTreemapLayout::cells(items({kMost, kMost, kMost, kMost}));
    ASSERT_EQ(cells.size(), 4U);
    for (const StorageTreemapCell& cell : cells) {
        EXPECT_NEAR(cell.rect.width() * cell.rect.height(), 0.25, 1e-12);
    }
}

TEST(StorageTreemapLayoutSplit, IsOneBelowTwoItems)
{
    EXPECT_EQ(StorageTreemapLayout::balancedSplitIndex({}), 1U);
    EXPECT_EQ(splitOf({5}), 1U);
}

TEST(StorageTreemapLayoutSplit, TakesThePositionWithTheClosestHalves)
{
    EXPECT_EQ(splitOf({90, 5, 5}), 1U);
    EXPECT_EQ(splitOf({1, 1, 1, 1}), 2U);
    EXPECT_EQ(splitOf({5, 4, 3, 2, 1}), 2U);
    EXPECT_EQ(splitOf({1, 1, 1, 9}), 3U);
}

TEST(StorageTreemapLayoutSplit, TakesTheEarliestOfEqualPositions)
{
    EXPECT_EQ(splitOf({1, 1, 1}), 1U);
    EXPECT_EQ(splitOf({2, 0, 0, 2}), 1U);
    EXPECT_EQ(splitOf({0, 0, 0}), 1U);
    EXPECT_EQ(splitOf({0, 0, 4}), 1U);
}

TEST(StorageTreemapLayoutSplit, TakesANegativeSizeAsZero)
{
    EXPECT_EQ(splitOf({-100, 3, 3}), 2U);
    EXPECT_EQ(splitOf({3, -100, 3, 3, 3}), 3U);
    EXPECT_EQ(splitOf({std::numeric_limits<std::int64_t>::min(), 1, 1}), 2U);
}

TEST(StorageTreemapLayoutSplit, StaysWithTheBestSoFarWhereASumOverflows)
{
    // The sum of all.
    EXPECT_EQ(splitOf({kMost, kMost, kMost, kMost}), 1U);
    // Twice the first part: 3 would be a little better than 2.
    constexpr std::int64_t part = kMost / 20;
    EXPECT_EQ(splitOf({6 * part, 2 * part, 3 * part, 8 * part}), 2U);
    EXPECT_EQ(splitOf({6, 2, 3, 8}), 2U);
    EXPECT_EQ(splitOf({6 * part, part, 4 * part, 8 * part}), 2U);
    EXPECT_EQ(splitOf({6, 1, 4, 8}), 3U);
}

TEST(StorageTreemapCell, TellsCellsApartByItemAndPlace)
{
    const auto two = items({1, 1});
    const StorageTreemapCell cell{.item = two[0], .rect = {}};
    const std::hash<StorageTreemapCell> hash;
    EXPECT_EQ(cell, (StorageTreemapCell{.item = two[0], .rect = {}}));
    EXPECT_EQ(hash(cell), hash(StorageTreemapCell{.item = two[0], .rect = {}}));
    EXPECT_NE(cell, (StorageTreemapCell{.item = two[1], .rect = {}}));
    const StorageTreemapCell smaller{.item = two[0], .rect = {.left = 0, .top = 0, .right = 0.5, .bottom = 1}};
    EXPECT_NE(cell, smaller);
    EXPECT_EQ((std::unordered_set<StorageTreemapCell>{cell, smaller, cell}).size(), 2U);
}

} // namespace KarvelloUI
