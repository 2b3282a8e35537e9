#pragma once

#include "CleanerCore/Insights/StorageMapItem.h"

#include <cstddef>
#include <functional>

namespace KarvelloUI {

/// A rectangle by its edges, `right` and `bottom` not below `left` and `top`. Neighbours share the very same number for
/// the edge between them, so they meet on one pixel at every size of the map.
struct UnitRect {
    double left = 0;
    double top = 0;
    double right = 1;
    double bottom = 1;

    [[nodiscard]] constexpr double width() const { return right - left; }
    [[nodiscard]] constexpr double height() const { return bottom - top; }
    /// Without any area. An edge that is not a number makes no area either.
    [[nodiscard]] constexpr bool isEmpty() const { return !(width() > 0 && height() > 0); }

    friend bool operator==(const UnitRect&, const UnitRect&) = default;
};

/// One cell of the size map.
struct StorageTreemapCell {
    CleanerCore::StorageMapItem item;
    /// In unit space: 0 to 1 on both axes, downwards.
    UnitRect rect;

    friend bool operator==(const StorageTreemapCell&, const StorageTreemapCell&) = default;
};

} // namespace KarvelloUI

template <>
struct std::hash<KarvelloUI::StorageTreemapCell> {
    std::size_t operator()(const KarvelloUI::StorageTreemapCell& cell) const noexcept;
};
