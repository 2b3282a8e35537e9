#include "KarvelloUI/Design/StorageTreemapCell.h"

#include <string>

// An item that is listed twice has two places, and a place has one item: these parts tell cells apart well enough.
std::size_t std::hash<KarvelloUI::StorageTreemapCell>::operator()(
    const KarvelloUI::StorageTreemapCell& cell) const noexcept
{
    const std::hash<double> ofNumber;
    std::size_t seed = std::hash<std::string>{}(cell.item.id);
    for (const double edge : {cell.rect.left, cell.rect.top, cell.rect.right, cell.rect.bottom}) {
        seed = seed * 31 + ofNumber(edge);
    }
    return seed;
}
