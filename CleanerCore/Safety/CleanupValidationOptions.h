#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/PackageNames.h"

#include <cstdint>
#include <set>
#include <string>

namespace CleanerCore {

/// Which of the items that a clean's walk meets count for the date that is compared with the scan's: the walk sees
/// everything, the scan left out what its location told it to.
struct CleanupValidationOptions {
    static constexpr auto& packageExtensions = Platform::kPackageExtensions;

    bool includesHiddenFiles = false;
    bool includesPackageDescendants = false;
    /// At least 1.
    std::int64_t maximumDescendantItems = 1;

    /// Adds to `excludedPackageRootPaths`, while the walk goes on, the packages whose contents must not count.
    [[nodiscard]] bool includesInFreshness(const Platform::FileURL& itemURL, const Platform::FileURL& rootURL,
        bool isPackage, std::set<std::string, std::less<>>& excludedPackageRootPaths) const;

    friend bool operator==(const CleanupValidationOptions&, const CleanupValidationOptions&) = default;
};

} // namespace CleanerCore
