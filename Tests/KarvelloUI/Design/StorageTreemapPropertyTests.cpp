#include "KarvelloUI/Design/StorageTreemapLayout.h"
#include "Tests/KarvelloUI/Design/TreemapFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <map>
#include <random>
#include <string>

namespace KarvelloUI {

namespace {

using Cells = std::vector<StorageTreemapCell>;
using Random = std::mt19937_64;
using Sizes = std::vector<std::int64_t>;

std::int64_t pick(Random& random, std::int64_t low, std::int64_t high)
{
    return std::uniform_int_distribution(low, high)(random);
}

/// As folders have them: few large ones and many small.
std::int64_t steepSize(Random& random)
{
    return std::int64_t{1} << pick(random, 0, 62);
}

Sizes randomSizes(Random& random, std::size_t count)
{
    Sizes sizes(count);
    const std::int64_t kind = pick(random, 0, 4);
    for (std::int64_t& size : sizes) {
        switch (kind) {
        case 0:
            size = 4096;
            break;
        case 1:
            size = pick(random, 0, 3);
            break;
        case 2:
            size = steepSize(random);
            break;
        case 3:
            size = pick(random, 0, std::numeric_limits<std::int64_t>::max());
            break;
        default:
            size = pick(random, 1, 1'000'000'000);
        }
    }
    return sizes;
}

/// Why the cells do not tile the unit square; empty if they do. A line from the top meets edges at the very same numbers
/// where they touch, so this compares without any tolerance: it sweeps from left to right, and wherever cells end and
/// begin, those that begin have to cover exactly the heights of those that end.
std::string flawOfTiling(const Cells& cells)
{
    struct Change {
        std::vector<std::pair<double, double>> ending;
        std::vector<std::pair<double, double>> beginning;
    };
    std::map<double, Change> changes;
    for (const StorageTreemapCell& cell : cells) {
        if (cell.rect.isEmpty()) {
            return "a cell without area";
        }
        changes[cell.rect.left].beginning.emplace_back(cell.rect.top, cell.rect.bottom);
        changes[cell.rect.right].ending.emplace_back(cell.rect.top, cell.rect.bottom);
    }
    const auto merged = [](std::vector<std::pair<double, double>> ranges) {
        std::ranges::sort(ranges);
        std::vector<std::pair<double, double>> joined;
        for (const auto& range : ranges) {
            if (!joined.empty() && joined.back().second == range.first) {
                joined.back().second = range.second;
            } else {
                joined.push_back(range);
            }
        }
        // An overlap stays as it is: two ranges that no other side can match.
        return joined;
    };
    const std::vector<std::pair<double, double>> whole{{0.0, 1.0}};
    for (auto& [position, change] : changes) {
        const auto ending = merged(change.ending);
        const auto beginning = merged(change.beginning);
        const bool isSound = position == 0 ? ending.empty() && beginning == whole
            : position == 1                ? beginning.empty() && ending == whole
                                           : position > 0 && position < 1 && ending == beginning;
        if (!isSound) {
            return fmt::format("a gap or an overlap at {}", position);
        }
    }
    return changes.contains(0) && changes.contains(1) ? "" : "the square is not filled";
}

/// The area of each cell is its item's share of what is shown.
void expectProportional(const Cells& cells)
{
    double total = 0;
    for (const StorageTreemapCell& cell : cells) {
        total += static_cast<double>(cell.item.sizeBytes);
    }
    for (const StorageTreemapCell& cell : cells) {
        const double share = static_cast<double>(cell.item.sizeBytes) / total;
        ASSERT_NEAR(cell.rect.width() * cell.rect.height(), share, 1e-12) << cell.item.sizeBytes;
    }
}

void expectSoundMap(const Sizes& sizes)
{
    const auto items = TreemapFixture::items(sizes);
    const Cells cells = StorageTreemapLayout::cells(items);
    const auto shown =
        static_cast<std::size_t>(std::ranges::count_if(sizes, [](std::int64_t size) { return size >= 1; }));
    ASSERT_LE(cells.size(), shown);
    ASSERT_EQ(cells.empty(), shown == 0);
    if (!cells.empty()) {
        ASSERT_EQ(flawOfTiling(cells), "");
        expectProportional(cells);
    }
    ASSERT_TRUE(std::ranges::is_sorted(
        cells, std::ranges::greater{}, [](const StorageTreemapCell& cell) { return cell.item.sizeBytes; }));
    ASSERT_EQ(cells, StorageTreemapLayout::cells(items));
}

} // namespace

TEST(StorageTreemapProperty, TheSweepItselfFindsGapsAndOverlaps)
{
    const auto item = TreemapFixture::item(0, 1);
    const auto cellsOf = [&item](std::initializer_list<UnitRect> rects) {
        Cells cells;
        for (const UnitRect& rect : rects) {
            cells.push_back({.item = item, .rect = rect});
        }
        return cells;
    };
    const UnitRect left{.left = 0, .top = 0, .right = 0.5, .bottom = 1};
    EXPECT_EQ(flawOfTiling(cellsOf({left, {.left = 0.5, .top = 0, .right = 1, .bottom = 1}})), "");
    EXPECT_NE(flawOfTiling(cellsOf({left})), "");
    EXPECT_NE(flawOfTiling(cellsOf({left, {.left = 0.5, .top = 0, .right = 1, .bottom = 0.9}})), "");
    EXPECT_NE(flawOfTiling(cellsOf({left, {.left = 0.4, .top = 0, .right = 1, .bottom = 1}})), "");
    EXPECT_NE(flawOfTiling(cellsOf({left, {.left = 0.6, .top = 0, .right = 1, .bottom = 1}})), "");
    EXPECT_NE(flawOfTiling(cellsOf({left, {.left = 0.5, .top = 0, .right = 1, .bottom = 0.6},
                  {.left = 0.5, .top = 0.5, .right = 1, .bottom = 1}})),
        "");
    EXPECT_NE(flawOfTiling(cellsOf({{}, {}})), "");
    EXPECT_NE(flawOfTiling({}), "");
}

TEST(StorageTreemapProperty, TilesTheUnitSquareForRandomSizes)
{
    Random random(20'261'121);
    for (int round = 0; round < 400 && !HasFatalFailure(); ++round) {
        SCOPED_TRACE(round);
        expectSoundMap(randomSizes(random, static_cast<std::size_t>(pick(random, 0, 60))));
    }
}

TEST(StorageTreemapProperty, TilesTheUnitSquareFor10000Items)
{
    constexpr std::size_t count = 10'000;
    Random random(7);
    Sizes steep(count);
    std::ranges::generate(steep, [&random] { return steepSize(random); });
    Sizes mixed(count);
    std::ranges::generate(mixed, [&random] { return pick(random, 0, 1'000'000'000'000); });
    const Sizes equal(count, 4096);
    const Sizes zero(count, 0);
    // Each level takes off one item, so the parts nest 10,000 deep.
    const Sizes huge(count, std::numeric_limits<std::int64_t>::max());
    for (const Sizes& sizes : {steep, mixed, equal, zero, huge}) {
        SCOPED_TRACE(sizes.front());
        expectSoundMap(sizes);
    }
    EXPECT_EQ(StorageTreemapLayout::cells(TreemapFixture::items(equal)).size(), count);
    EXPECT_EQ(StorageTreemapLayout::cells(TreemapFixture::items(huge)).size(), count);
}

TEST(StorageTreemapProperty, GivesTheSameMapWhateverTheOrderOfDifferentSizes)
{
    Random random(11);
    Sizes sizes(500);
    for (std::int64_t& size : sizes) {
        size = pick(random, 1, std::int64_t{1} << 40);
    }
    std::ranges::sort(sizes);
    ASSERT_EQ(std::ranges::adjacent_find(sizes), sizes.end());
    auto items = TreemapFixture::items(sizes);
    const Cells expected = StorageTreemapLayout::cells(items);
    for (int round = 0; round < 5; ++round) {
        std::ranges::shuffle(items, random);
        EXPECT_EQ(StorageTreemapLayout::cells(items), expected);
    }
}

} // namespace KarvelloUI
