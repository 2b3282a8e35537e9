#pragma once

#include "KarvelloUI/Design/StorageTreemapCell.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace KarvelloUI {

/// Which way a rectangle is divided: left and right, or top and bottom.
enum class StorageTreemapSplit : std::uint8_t { horizontal, vertical };

/// Turns the size map into rectangles by halving: a list is cut where its halves are closest in size, the rectangle in
/// the same proportion, and both go on with the other axis. Neighbours in the order of size stay neighbours on the map.
struct StorageTreemapLayout {
    /// The cells of the items with at least one byte, the largest first; equal sizes keep the order of the input. The cells
    /// tile the unit square. An item too small for any width beside the others gets no cell.
    [[nodiscard]] static std::vector<StorageTreemapCell> cells(std::span<const CleanerCore::StorageMapItem> items);

    /// The cells of the items in their given order, tiling `rect`; none where `rect` has no area.
    [[nodiscard]] static std::vector<StorageTreemapCell> layout(
        std::vector<CleanerCore::StorageMapItem> items, const UnitRect& rect, StorageTreemapSplit split);

    /// How many items go into the first part: the sums of both parts are as close as they can be, and among equals the first
    /// part is the shortest. A negative size counts as 0. At least 1; 1 also where the sizes sum up beyond 64 bits.
    [[nodiscard]] static std::size_t balancedSplitIndex(std::span<const CleanerCore::StorageMapItem> items);
};

} // namespace KarvelloUI
