#include "KarvelloUI/Stores/CustomScanFolderResolver.h"

#include <string>
#include <utility>

namespace KarvelloUI {

CustomScanFolderResolution CustomScanFolderResolver::resolve(std::span<const CustomScanFolder> folders,
    const Platform::FileManager& fileManager, const Platform::Bookmarks& bookmarks)
{
    CustomScanFolderResolution resolution;
    const auto skip = [&](std::string_view path, std::string reason) {
        resolution.skippedItems.push_back({Platform::FileURL::folder(path), std::move(reason)});
    };
    for (const auto& folder : folders) {
        auto resolved = folder.resolve(fileManager, bookmarks);
        if (!resolved) {
            const auto* const refused = std::get_if<CustomScanFolderError>(&resolved.error());
            skip(refused != nullptr ? refused->path : folder.fallbackPath, localizedDescription(resolved.error()));
        } else if (resolved->bookmarkWasStale) {
            skip(resolved->url.path(), std::string(CustomScanFolderResolution::staleReason));
        } else {
            resolution.locations.push_back(CleanerCore::checkedCustomFolderLocation(resolved->url, folder.displayName));
            resolution.resolvedFolders.push_back(*std::move(resolved));
        }
    }
    return resolution;
}

} // namespace KarvelloUI
