#include "CleanerCore/Cleaning/TrashRoots.h"

#include "Platform/Services/HomeDirectory.h"

#include <algorithm>
#include <utility>

namespace CleanerCore {

using Platform::FileURL;

namespace {

std::vector<FileURL> withoutDuplicates(std::vector<FileURL> urls)
{
    std::vector<FileURL> unique;
    for (auto& url : urls) {
        if (std::ranges::find(unique, url.path(), &FileURL::path) == unique.end()) {
            unique.push_back(std::move(url));
        }
    }
    return unique;
}

} // namespace

std::vector<FileURL> platformTrashRootURLs(const FileURL& original, const Platform::Trash& trash,
    const Platform::FileManager& fileManager, const std::optional<FileURL>& homeDirectory)
{
    auto urls = trash.trashDirectories(original);
    const auto home = homeDirectory ? *homeDirectory : Platform::homeDirectoryForCurrentUser();
    auto ofICloudDrive = home.appending("Library/Mobile Documents/.Trash", Platform::DirectoryHint::isFolder);
    if (fileManager.directoryExists(ofICloudDrive)) {
        urls.push_back(std::move(ofICloudDrive));
    }
    return withoutDuplicates(std::move(urls));
}

std::vector<FileURL> restoreSourceRootURLs(const FileURL& original,
    const std::optional<std::vector<FileURL>>& allowedTrashRootURLs, const Platform::Trash& trash,
    const Platform::FileManager& fileManager, const std::optional<FileURL>& homeDirectory)
{
    return allowedTrashRootURLs ? withoutDuplicates(*allowedTrashRootURLs)
                                : platformTrashRootURLs(original, trash, fileManager, homeDirectory);
}

} // namespace CleanerCore
