#pragma once

#include "CleanerCore/Scan/AppCacheContext.h"
#include "CleanerCore/Scan/CleanupCategory.h"
#include "CleanerCore/Scan/CleanupSafety.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Base/RawValue.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace CleanerCore {

enum class ScanDepth : std::uint8_t { immediateChildren, directoryItself };

/// One root that the scanner visits, and what it makes of what it finds there.
struct ScanLocation {
    /// What a location is made from; the constructor normalises it.
    struct Fields {
        Platform::FileURL rootURL;
        CleanupCategory category = CleanupCategory::customFolder;
        /// Absent: the last component of the root.
        std::optional<std::string> displayName = {};
        ScanDepth depth = ScanDepth::immediateChildren;
        bool isSelectedByDefault = false;
        CleanupSafety safety = CleanupSafety::manualReview;
        /// Seconds; negative counts as 0.
        double minimumModificationAge = 0;
        bool includesHiddenFiles = false;
        bool includesPackageDescendants = false;
        std::optional<AppCacheContext> appCacheContext = {};
    };

    ScanLocation() = default;
    explicit ScanLocation(Fields fields);

    Platform::FileURL rootURL;
    CleanupCategory category = CleanupCategory::customFolder;
    std::string displayName;
    ScanDepth depth = ScanDepth::immediateChildren;
    bool isSelectedByDefault = false;
    CleanupSafety safety = CleanupSafety::manualReview;
    /// Seconds: younger items are held back. 0 holds nothing back.
    double minimumModificationAge = 0;
    bool includesHiddenFiles = false;
    bool includesPackageDescendants = false;
    std::optional<AppCacheContext> appCacheContext;

    friend bool operator==(const ScanLocation&, const ScanLocation&) = default;
};

/// The roots, in the order of the locations.
[[nodiscard]] std::vector<Platform::FileURL> rootURLs(std::span<const ScanLocation> locations);

} // namespace CleanerCore

template <>
struct Platform::RawValues<CleanerCore::ScanDepth> {
    static constexpr std::array<std::string_view, 2> names{"immediateChildren", "directoryItself"};
};
