#pragma once

#include "KarvelloUI/Copy/Vocabulary/MacDashboardSection.h"
#include "Platform/Base/RawValue.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace KarvelloUI {

/// Where the dashboard is asked to open from outside of it.
enum class KarvelloDashboardLaunchDestination : std::uint8_t { dashboard, cleanupReview, memoryReview, systemReview };

[[nodiscard]] constexpr MacDashboardSection sectionOf(KarvelloDashboardLaunchDestination destination)
{
    switch (destination) {
    case KarvelloDashboardLaunchDestination::dashboard:
        break;
    case KarvelloDashboardLaunchDestination::cleanupReview:
        return MacDashboardSection::cleanup;
    case KarvelloDashboardLaunchDestination::memoryReview:
        return MacDashboardSection::memoryAnalysis;
    case KarvelloDashboardLaunchDestination::systemReview:
        return MacDashboardSection::system;
    }
    return MacDashboardSection::dashboard;
}

struct KarvelloDashboardLaunchRequest {
    KarvelloDashboardLaunchDestination destination = KarvelloDashboardLaunchDestination::dashboard;
    /// Another one for each request, so that the same destination twice is seen as two wishes. Nobody reads it.
    std::string requestID = {};

    friend bool operator==(const KarvelloDashboardLaunchRequest&, const KarvelloDashboardLaunchRequest&) = default;
};

} // namespace KarvelloUI

template <>
struct Platform::RawValues<KarvelloUI::KarvelloDashboardLaunchDestination> {
    static constexpr std::array<std::string_view, 4> names{
        "dashboard", "cleanupReview", "memoryReview", "systemReview"};
};
