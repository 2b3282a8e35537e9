#include "KarvelloUI/Design/StorageTreemapTint.h"

namespace KarvelloUI {

Color tintOfShare(double share, const KarvelloDesign::Palette& palette)
{
    if (share >= 0.75) {
        return palette.review;
    }
    if (share >= 0.45) {
        return palette.caution;
    }
    if (share >= 0.2) {
        return palette.heatmapMid;
    }
    return share >= 0.06 ? palette.accent : palette.safe;
}

Color tint(const CleanerCore::StorageMapItem& item, std::int64_t maxBytes, const KarvelloDesign::Palette& palette)
{
    if (maxBytes < 1) {
        return palette.safe;
    }
    return tintOfShare(static_cast<double>(item.sizeBytes) / static_cast<double>(maxBytes), palette);
}

} // namespace KarvelloUI
