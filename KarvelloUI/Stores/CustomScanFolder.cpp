#include "KarvelloUI/Stores/CustomScanFolder.h"

#include "CleanerCore/Safety/SafePathPolicy.h"
#include "Platform/Base/TextOrder.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace KarvelloUI {

std::expected<CustomScanFolder, FolderAccessError<CustomScanFolderError>> CustomScanFolder::make(
    const Platform::FileURL& picked, const Platform::FileManager& fileManager, const Platform::Bookmarks& bookmarks,
    Platform::Date now, Platform::UUID id)
{
    const Platform::BookmarkAccess access(bookmarks, picked);
    if (auto allowed = CleanerCore::validateCustomFolder(picked, fileManager); !allowed) {
        return std::unexpected(std::move(allowed.error()));
    }
    auto bookmark = bookmarks.create(picked);
    if (!bookmark) {
        return std::unexpected(std::move(bookmark.error()));
    }
    return CustomScanFolder{
        .id = id,
        .displayName = std::string(picked.lastPathComponent()),
        .fallbackPath = picked.path(),
        .bookmarkData = *std::move(bookmark),
        .createdAt = now,
    };
}

std::expected<ResolvedCustomScanFolder, FolderAccessError<CustomScanFolderError>> CustomScanFolder::resolve(
    const Platform::FileManager& fileManager, const Platform::Bookmarks& bookmarks) const
{
    auto resolved = bookmarks.resolve(bookmarkData);
    if (!resolved) {
        return std::unexpected(std::move(resolved.error()));
    }
    const Platform::BookmarkAccess access(bookmarks, resolved->url);
    if (!CleanerCore::SafePathPolicy::validateScanRoot(resolved->url, std::nullopt, fileManager)) {
        return std::unexpected(
            CustomScanFolderError{CustomScanFolderError::Kind::unsafeRoot, std::string(resolved->url.path())});
    }
    return ResolvedCustomScanFolder{
        .folder = *this, .url = std::move(resolved->url), .bookmarkWasStale = resolved->isStale};
}

std::vector<CustomScanFolder> addingFolder(std::span<const CustomScanFolder> folders, CustomScanFolder added)
{
    std::vector<CustomScanFolder> list;
    std::copy_if(folders.begin(), folders.end(), std::back_inserter(list),
        [&](const CustomScanFolder& folder) { return folder.fallbackPath != added.fallbackPath; });
    list.push_back(std::move(added));
    std::stable_sort(list.begin(), list.end(), [](const CustomScanFolder& left, const CustomScanFolder& right) {
        return Platform::Text::localizedStandardCompare(left.displayName, right.displayName) < 0;
    });
    return list;
}

} // namespace KarvelloUI
