#pragma once

#include "Platform/Base/RawValue.h"

#include <cstdint>

namespace CleanerCore {

/// What kind of clutter a location holds. Raw values are part of candidate ids and of every stored file.
enum class CleanupCategory : std::uint8_t {
    userCaches,
    userLogs,
    xcodeDerivedData,
    simulatorCaches,
    appSandboxCaches,
    appContainerCaches,
    groupContainerCaches,
    xcodeDeviceSupport,
    developerToolCaches,
    packageManagerCaches,
    buildArchives,
    temporaryFiles,
    customFolder,
};

[[nodiscard]] std::string_view displayName(CleanupCategory category);
[[nodiscard]] std::string_view explanation(CleanupCategory category);
[[nodiscard]] bool requiresManualReviewByDefault(CleanupCategory category);

/// Why an item is suggested: one reason for each category, in the same order.
enum class CleanupRecommendationReason : std::uint8_t {
    regenerableUserCache,
    diagnosticLog,
    xcodeBuildArtifact,
    simulatorCache,
    appSandboxCache,
    appContainerCache,
    sharedContainerCache,
    xcodeDeviceSupport,
    developerToolCache,
    packageManagerCache,
    buildArchive,
    temporaryItem,
    userSelectedFolder,
};

[[nodiscard]] constexpr CleanupRecommendationReason recommendationReason(CleanupCategory category)
{
    return static_cast<CleanupRecommendationReason>(category);
}

} // namespace CleanerCore

template <>
struct Platform::RawValues<CleanerCore::CleanupCategory> {
    static constexpr std::array<std::string_view, 13> names{
        "userCaches",
        "userLogs",
        "xcodeDerivedData",
        "simulatorCaches",
        "appSandboxCaches",
        "appContainerCaches",
        "groupContainerCaches",
        "xcodeDeviceSupport",
        "developerToolCaches",
        "packageManagerCaches",
        "buildArchives",
        "temporaryFiles",
        "customFolder",
    };
};

template <>
struct Platform::RawValues<CleanerCore::CleanupRecommendationReason> {
    static constexpr std::array<std::string_view, 13> names{
        "regenerableUserCache",
        "diagnosticLog",
        "xcodeBuildArtifact",
        "simulatorCache",
        "appSandboxCache",
        "appContainerCache",
        "sharedContainerCache",
        "xcodeDeviceSupport",
        "developerToolCache",
        "packageManagerCache",
        "buildArchive",
        "temporaryItem",
        "userSelectedFolder",
    };
};
