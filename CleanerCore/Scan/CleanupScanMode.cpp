#include "CleanerCore/Scan/CleanupScanMode.h"

#include <algorithm>

namespace CleanerCore {

namespace {

constexpr auto kModes = Platform::allCases<CleanupScanMode>();

} // namespace

std::span<const CleanupScanMode> appStoreModes()
{
    return std::span(kModes).first(2);
}

std::span<const CleanupScanMode> directDistributionModes()
{
    return kModes;
}

std::span<const CleanupScanMode> availableModes(bool includesDirectDistribution)
{
    return includesDirectDistribution ? directDistributionModes() : appStoreModes();
}

CleanupScanMode sanitized(CleanupScanMode mode, bool includesDirectDistribution)
{
    return std::ranges::count(availableModes(includesDirectDistribution), mode) != 0 ? mode : CleanupScanMode::standard;
}

} // namespace CleanerCore
