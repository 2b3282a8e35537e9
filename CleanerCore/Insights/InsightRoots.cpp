#include "CleanerCore/Insights/InsightRoots.h"

#include "CleanerCore/Safety/ComparisonForm.h"
#include "CleanerCore/Scan/XDGBaseDirectories.h"
#include "Platform/Services/HomeDirectory.h"
#include "Platform/Services/UserDirectories.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace CleanerCore {

using Platform::DirectoryHint;
using Platform::FileURL;

namespace {

constexpr std::array<std::string_view, 6> kMacCleanable{
    "Downloads", "Desktop", "Documents", "Movies", "Pictures", "Music"};
constexpr std::array<std::string_view, 2> kMacLibrary{"Library/Application Support", "Library/Developer"};
constexpr std::size_t kMaximumUserDirsBytes = 1 << 20;

InsightRoots macRoots(const FileURL& homeDirectory, const Platform::FileManager& fileManager)
{
    InsightRoots roots;
    const auto add = [&](std::string_view path, std::vector<FileURL>& list) {
        if (auto folder = homeDirectory.appending(path, DirectoryHint::isFolder); fileManager.directoryExists(folder)) {
            list.push_back(std::move(folder));
        }
    };
    for (const auto path : kMacCleanable) {
        add(path, roots.cleanable);
    }
    roots.folders = roots.cleanable;
    for (const auto path : kMacLibrary) {
        add(path, roots.folders);
    }
    roots.downloadsFolder = homeDirectory.appending("Downloads", DirectoryHint::isFolder);
    return roots;
}

/// Adds to a list in which no folder lies in another, or holds the home.
class DisjointFolders {
public:
    DisjointFolders(const FileURL& homeDirectory, const Platform::FileManager& fileManager)
        : m_home(homeDirectory)
        , m_fileManager(fileManager)
    {
    }

    void add(const FileURL& folder)
    {
        const auto isOrLiesInIt = [&](const FileURL& other) { return equalsOrIsInside(folder.path(), other.path()); };
        if (folder.isRoot() || equalsOrIsInside(m_home.path(), folder.path())
            || std::ranges::any_of(m_folders, isOrLiesInIt) || !m_fileManager.directoryExists(folder)) {
            return;
        }
        std::erase_if(
            m_folders, [&](const FileURL& other) { return Platform::isPathInside(other.path(), folder.path()); });
        m_folders.push_back(folder);
    }

    [[nodiscard]] const std::vector<FileURL>& folders() const { return m_folders; }

private:
    const FileURL& m_home;
    const Platform::FileManager& m_fileManager;
    std::vector<FileURL> m_folders;
};

InsightRoots xdgRoots(
    const FileURL& homeDirectory, const Platform::FileManager& fileManager, const Platform::Environment& environment)
{
    const XDGBaseDirectories directories(homeDirectory, fileManager, environment);
    const auto& home = directories.homeDirectory();
    const auto userDirsFile =
        fileManager.readFile(directories.directory(XDGBase::config).appending("user-dirs.dirs"), kMaximumUserDirsBytes);

    InsightRoots roots;
    DisjointFolders folders(home, fileManager);
    for (const auto directory : Platform::kUserDirectories) {
        const auto folder = Platform::userDirectory(directory, userDirsFile ? *userDirsFile : std::string_view(), home);
        if (folder) {
            folders.add(*folder);
        }
        if (directory == Platform::UserDirectory::downloads) {
            roots.downloadsFolder = folder;
        }
    }
    roots.cleanable = folders.folders();
    folders.add(directories.directory(XDGBase::data));
    folders.add(home.appending(".var/app", DirectoryHint::isFolder));
    roots.folders = folders.folders();
    return roots;
}

std::optional<std::string> belowTilde(const FileURL& url, const std::string& homePath)
{
    const auto& path = url.path();
    if (path == homePath) {
        return "~";
    }
    return Platform::isPathInside(path, homePath) ? std::optional("~" + path.substr(homePath.size())) : std::nullopt;
}

} // namespace

InsightRoots InsightRoots::of(
    const FileURL& homeDirectory, const Platform::FileManager& fileManager, const Platform::Environment& environment)
{
    if (fileManager.directoryExists(homeDirectory.appending("Library", DirectoryHint::isFolder))) {
        return macRoots(homeDirectory, fileManager);
    }
    return xdgRoots(homeDirectory, fileManager, environment);
}

std::string insightDisplayName(
    const FileURL& url, const FileURL& homeDirectory, const Platform::FileManager& fileManager)
{
    if (auto name = belowTilde(url, homeDirectory.path())) {
        return *std::move(name);
    }
    // The folders of a home that is reached through a link are listed without it.
    if (auto name = belowTilde(url, resolvedPath(homeDirectory, fileManager))) {
        return *std::move(name);
    }
    return belowTilde(url, Platform::homeDirectoryForCurrentUser().path()).value_or(url.path());
}

} // namespace CleanerCore
