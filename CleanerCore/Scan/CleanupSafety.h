#pragma once

#include "Platform/Base/RawValue.h"

#include <cstdint>

namespace CleanerCore {

/// How much thought an item asks for before it goes. The declaration order is the order of reports.
enum class CleanupSafety : std::uint8_t { safe, caution, manualReview };

[[nodiscard]] std::string_view displayName(CleanupSafety safety);
[[nodiscard]] constexpr int sortPriority(CleanupSafety safety)
{
    return static_cast<int>(safety);
}

} // namespace CleanerCore

template <>
struct Platform::RawValues<CleanerCore::CleanupSafety> {
    static constexpr std::array<std::string_view, 3> names{"safe", "caution", "manualReview"};
};
