#pragma once

#include "CleanerCore/Safety/ComparisonForm.h"
#include "CleanerCore/Safety/NoTouchPathPolicy.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace CleanerCore {

/// A folder that holds the homes of persons, and a folder in it that belongs to all of them, if it has one.
struct UsersFolder {
    std::string path;
    std::optional<std::string> sharedPath;
};

/// Whether a root lies among the homes of persons but not in the person's own: the folder of homes, its shared folder,
/// another person's home. A root outside of `users` is none of this rule's business. All in one comparison form.
[[nodiscard]] bool isUnsafeUsersRoot(
    std::string_view rootKey, std::string_view homeKey, const UsersFolder& users, NameComparison comparison);

/// What a scan root is measured against. Made once for a home; the checks look at the disk anew each time.
class ScanRootSafety {
public:
    /// Without a home the person's real one counts.
    ScanRootSafety(const std::optional<Platform::FileURL>& homeDirectory, const Platform::FileManager& fileManager);

    /// Whether a folder may be a scan root: it exists, is no link and is reached through none, it is neither user data
    /// nor the home itself nor another person's, and no protected path is, holds or lies in it. What cannot be read
    /// counts as unsafe.
    [[nodiscard]] bool isScanRootSafe(const Platform::FileURL& url, const Platform::FileManager& fileManager,
        NoTouchScope scope = NoTouchScope::everywhere) const;

    /// Resolved.
    [[nodiscard]] const std::string& homePath() const { return m_homePath; }
    [[nodiscard]] const std::vector<std::string>& protectedPaths() const { return m_protectedPaths; }
    [[nodiscard]] const std::vector<std::string>& sharedFolders() const { return m_sharedFolders; }

private:
    std::string m_homePath;
    std::vector<std::string> m_protectedPaths;
    /// Protected themselves, but not what lies in them.
    std::vector<std::string> m_sharedFolders;
    std::vector<UsersFolder> m_usersFolders;
};

} // namespace CleanerCore
