#include "CleanerCore/Scan/StorageScanProgress.h"

#include <algorithm>
#include <cmath>

namespace CleanerCore {

namespace {

double clampedFraction(double fraction)
{
    return fraction > 0 ? std::min(fraction, 1.0) : 0.0;
}

} // namespace

StorageScanProgress StorageScanProgress::normalized() const
{
    auto progress = *this;
    for (auto* const count : {&progress.completedLocations, &progress.totalLocations, &progress.completedItems,
             &progress.completedItemsInCurrentLocation, &progress.foundCandidates, &progress.skippedItems}) {
        *count = std::max<std::int64_t>(*count, 0);
    }
    if (progress.totalItemsInCurrentLocation) {
        progress.totalItemsInCurrentLocation = std::max<std::int64_t>(*progress.totalItemsInCurrentLocation, 0);
    }
    progress.fractionCompleted = clampedFraction(fractionCompleted);
    return progress;
}

int StorageScanProgress::percentage() const
{
    return static_cast<int>(std::lround(clampedFraction(fractionCompleted) * 100));
}

} // namespace CleanerCore
