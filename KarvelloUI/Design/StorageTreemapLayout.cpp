#include "KarvelloUI/Design/StorageTreemapLayout.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace KarvelloUI {

using CleanerCore::StorageMapItem;

namespace {

/// Wide enough for the sum of any list.
__extension__ using ByteSum = __int128;

std::int64_t countedBytes(const StorageMapItem& item)
{
    return std::max<std::int64_t>(item.sizeBytes, 0);
}

ByteSum sumOfSizes(std::span<const StorageMapItem> items)
{
    ByteSum sum = 0;
    for (const StorageMapItem& item : items) {
        sum += countedBytes(item);
    }
    return sum;
}

/// A part of the list that is still to be laid out.
struct Part {
    std::span<StorageMapItem> items;
    ByteSum size = 0;
    UnitRect rect;
    StorageTreemapSplit split = StorageTreemapSplit::horizontal;
};

std::pair<Part, Part> divided(const Part& part)
{
    const std::size_t index = StorageTreemapLayout::balancedSplitIndex(part.items);
    const auto firstItems = part.items.first(index);
    const ByteSum firstSize = sumOfSizes(firstItems);
    const double share = static_cast<double>(firstSize) / static_cast<double>(std::max<ByteSum>(part.size, 1));

    UnitRect firstRect = part.rect;
    UnitRect secondRect = part.rect;
    // A share of 1 has to give the far edge itself, or a sliver would be left over.
    if (part.split == StorageTreemapSplit::horizontal) {
        firstRect.right = secondRect.left = std::lerp(part.rect.left, part.rect.right, share);
    } else {
        firstRect.bottom = secondRect.top = std::lerp(part.rect.top, part.rect.bottom, share);
    }
    const StorageTreemapSplit next =
        part.split == StorageTreemapSplit::horizontal ? StorageTreemapSplit::vertical : StorageTreemapSplit::horizontal;
    return {Part{.items = firstItems, .size = firstSize, .rect = firstRect, .split = next},
        Part{.items = part.items.subspan(index), .size = part.size - firstSize, .rect = secondRect, .split = next}};
}

} // namespace

std::vector<StorageTreemapCell> StorageTreemapLayout::cells(std::span<const StorageMapItem> items)
{
    std::vector<StorageMapItem> shown;
    shown.reserve(items.size());
    std::ranges::copy_if(
        items, std::back_inserter(shown), [](const StorageMapItem& item) { return item.sizeBytes >= 1; });
    std::ranges::stable_sort(shown, std::ranges::greater{}, &StorageMapItem::sizeBytes);
    return layout(std::move(shown), UnitRect{}, StorageTreemapSplit::horizontal);
}

std::vector<StorageTreemapCell> StorageTreemapLayout::layout(
    std::vector<StorageMapItem> items, const UnitRect& rect, StorageTreemapSplit split)
{
    std::vector<StorageTreemapCell> cells;
    cells.reserve(items.size());
    // The last part is the next one. Sizes that fall steeply nest as deep as the list is long, so nothing recurses.
    std::vector<Part> pending{{.items = items, .size = sumOfSizes(items), .rect = rect, .split = split}};
    while (!pending.empty()) {
        const Part part = pending.back();
        pending.pop_back();
        if (part.items.empty() || part.rect.isEmpty()) {
            continue;
        }
        if (part.items.size() == 1) {
            cells.push_back({.item = std::move(part.items.front()), .rect = part.rect});
            continue;
        }
        auto [first, second] = divided(part);
        pending.push_back(second);
        pending.push_back(first);
    }
    return cells;
}

std::size_t StorageTreemapLayout::balancedSplitIndex(std::span<const StorageMapItem> items)
{
    std::size_t best = 1;
    std::int64_t total = 0;
    for (const StorageMapItem& item : items) {
        if (__builtin_add_overflow(total, countedBytes(item), &total)) {
            return best;
        }
    }
    std::int64_t smallestDifference = total;
    std::int64_t prefix = 0;
    for (std::size_t count = 1; count < items.size(); ++count) {
        prefix += countedBytes(items[count - 1]);
        std::int64_t twice = 0;
        if (__builtin_mul_overflow(prefix, std::int64_t{2}, &twice)) {
            break;
        }
        const std::int64_t difference = std::abs(total - twice);
        if (difference < smallestDifference) {
            smallestDifference = difference;
            best = count;
        }
        // From here on the first part only outgrows the second.
        if (twice >= total) {
            break;
        }
    }
    return best;
}

} // namespace KarvelloUI
