#pragma once

#include "CleanerCore/Safety/CleaningError.h"
#include "CleanerCore/Safety/NoTouchPathPolicy.h"
#include "CleanerCore/Safety/ScanRootSafety.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"

#include <expected>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace CleanerCore {

/// The scan roots in force, checked. Refuses by default: what cannot be read or is not clear counts as unsafe. An
/// immutable value; its checks look at the disk anew each time and hold nothing open.
class SafePathPolicy {
public:
    struct AllowedRoot {
        /// The path as given, symbolic links not resolved.
        std::string rawPath;
        /// The resolved path in the comparison form of the root's own volume.
        std::string resolvedPathKey;
        bool usesCaseInsensitivePathComparison = true;
    };

    /// Keeps the roots that pass the checks, in the given order; the others are left out without a word. Without a
    /// home the person's real one counts. For roots that are Trash folders `scope` says so.
    SafePathPolicy(std::span<const Platform::FileURL> allowedRootURLs,
        const std::optional<Platform::FileURL>& homeDirectory, const Platform::FileManager& fileManager,
        NoTouchScope scope = NoTouchScope::everywhere);
    /// The same, measured against what was made once for a home.
    SafePathPolicy(std::span<const Platform::FileURL> allowedRootURLs, const ScanRootSafety& safety,
        const Platform::FileManager& fileManager, NoTouchScope scope = NoTouchScope::everywhere);

    /// Whether an existing item may be cleaned.
    [[nodiscard]] std::expected<void, CleaningError> validate(
        const Platform::FileURL& url, const Platform::FileManager& fileManager) const;
    /// Whether a path may receive a restored item.
    [[nodiscard]] std::expected<void, CleaningError> validateRestoreDestination(
        const Platform::FileURL& url, const Platform::FileManager& fileManager) const;
    /// Whether a folder may be a scan root at all.
    [[nodiscard]] static std::expected<void, CleaningError> validateScanRoot(const Platform::FileURL& url,
        const std::optional<Platform::FileURL>& homeDirectory, const Platform::FileManager& fileManager);

    [[nodiscard]] const std::vector<AllowedRoot>& allowedRoots() const { return m_allowedRoots; }
    [[nodiscard]] const std::vector<std::string>& protectedPathKeys() const { return m_protectedPathKeys; }
    [[nodiscard]] const std::string& homePathKey() const { return m_homePathKey; }
    [[nodiscard]] bool usesCaseInsensitivePathComparison() const { return m_usesCaseInsensitivePathComparison; }

private:
    [[nodiscard]] std::string homeKey(std::string_view path) const;
    [[nodiscard]] bool isProtected(std::string_view key) const;
    [[nodiscard]] const AllowedRoot* allowedRoot(std::string_view resolvedPath) const;

    std::vector<AllowedRoot> m_allowedRoots;
    std::vector<std::string> m_protectedPathKeys;
    /// Protected themselves, but not what lies in them.
    std::vector<std::string> m_sharedFolderKeys;
    std::string m_homePathKey;
    NoTouchScope m_scope = NoTouchScope::everywhere;
    bool m_usesCaseInsensitivePathComparison = true;
};

} // namespace CleanerCore
