#pragma once

#include "Platform/Base/RawValue.h"

#include <cstdint>
#include <span>

namespace CleanerCore {

/// How far a scan reaches. `direct` exists only in a build that is distributed outside of a sandbox.
enum class CleanupScanMode : std::uint8_t { standard, aggressive, direct };

[[nodiscard]] std::span<const CleanupScanMode> appStoreModes();
[[nodiscard]] std::span<const CleanupScanMode> directDistributionModes();
[[nodiscard]] std::span<const CleanupScanMode> availableModes(bool includesDirectDistribution);
/// The mode itself where it is available, `standard` otherwise.
[[nodiscard]] CleanupScanMode sanitized(CleanupScanMode mode, bool includesDirectDistribution);

} // namespace CleanerCore

template <>
struct Platform::RawValues<CleanerCore::CleanupScanMode> {
    static constexpr std::array<std::string_view, 3> names{"standard", "aggressive", "direct"};
};
