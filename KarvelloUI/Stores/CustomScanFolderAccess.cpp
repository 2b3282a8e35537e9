#include "KarvelloUI/Stores/CustomScanFolderAccess.h"

#include "KarvelloUI/Stores/SecurityScopedAccess.h"

#include <string>

namespace KarvelloUI {

CustomScanFolderAccessResult CustomScanFolderAccess::start(std::span<const ResolvedCustomScanFolder> folders,
    const Platform::Bookmarks& bookmarks, const Platform::Environment& environment, std::optional<bool> requiresAccess)
{
    const bool isRequired = requiresSecurityScopedAccess(requiresAccess, environment);
    CustomScanFolderAccessResult result;
    for (const auto& folder : folders) {
        if (bookmarks.startAccessing(folder.url)) {
            result.access.accessedURLs.push_back(folder.url);
        } else if (isRequired) {
            result.skippedItems.push_back({folder.url, std::string(unavailableReason)});
        }
    }
    return result;
}

void CustomScanFolderAccess::stop(const Platform::Bookmarks& bookmarks) const
{
    for (const auto& url : accessedURLs) {
        bookmarks.stopAccessing(url);
    }
}

} // namespace KarvelloUI
