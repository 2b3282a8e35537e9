#pragma once

#include "CleanerCore/Safety/CleanupValidationOptions.h"
#include "CleanerCore/Scan/ScanLocation.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"

#include <cstdint>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace CleanerCore {

/// The fingerprint of a scan's roots and of the rules that were in force: which paths are still eligible, and whether
/// each root is the folder that was scanned. Immutable; the liveness tests look at the disk anew each time.
class CleanupEligibilityPolicy {
public:
    struct RootIdentity {
        std::uint64_t systemNumber = 0;
        std::uint64_t fileNumber = 0;

        friend bool operator==(const RootIdentity&, const RootIdentity&) = default;
    };
    struct Root {
        /// Standardised and trimmed; never "/".
        std::string path;
        RootIdentity identity;
        CleanupValidationOptions validationOptions;
    };

    /// Never fails: a location whose root is not a sound folder is dropped without a word. A maximum below 1 becomes 1.
    /// Roots are judged against `homeDirectory`, or without one against the person's real home.
    CleanupEligibilityPolicy(std::span<const ScanLocation> allowedLocations, const Platform::FileManager& fileManager,
        std::int64_t maximumValidationDescendantItems,
        const std::optional<Platform::FileURL>& homeDirectory = std::nullopt);

    [[nodiscard]] bool allows(const Platform::FileURL& url, const Platform::FileManager& fileManager) const;
    /// The root for which `allows` is true; nothing where it is false.
    [[nodiscard]] std::optional<Root> eligibleRoot(
        const Platform::FileURL& url, const Platform::FileManager& fileManager) const;
    /// The paths among `urls` that are allowed; each root is looked at once.
    [[nodiscard]] std::set<std::string, std::less<>> allowedPaths(
        std::span<const Platform::FileURL> urls, const Platform::FileManager& fileManager) const;
    /// The deepest root that is still the folder of the scan and holds `path` strictly inside.
    [[nodiscard]] std::optional<Root> mostSpecificLiveRoot(
        std::string_view path, const Platform::FileManager& fileManager) const;

    [[nodiscard]] const std::vector<Root>& roots() const { return m_roots; }

private:
    std::vector<Root> m_roots;
};

} // namespace CleanerCore
