#include "KarvelloUI/Stores/HomeAccessSecurityScope.h"

#include "KarvelloUI/Stores/SecurityScopedAccess.h"

namespace KarvelloUI {

HomeAccessSecurityScopeResult HomeAccessSecurityScope::start(const std::optional<Platform::FileURL>& url,
    const Platform::Bookmarks& bookmarks, const Platform::Environment& environment, std::optional<bool> requiresAccess)
{
    if (!url) {
        return {};
    }
    if (bookmarks.startAccessing(*url)) {
        return {.scope = {.accessedURL = *url}};
    }
    if (!requiresSecurityScopedAccess(requiresAccess, environment)) {
        return {};
    }
    return {.skippedItem = CleanerCore::SkippedItem{.url = *url, .reason = std::string(unavailableReason)}};
}

void HomeAccessSecurityScope::stop(const Platform::Bookmarks& bookmarks) const
{
    if (accessedURL) {
        bookmarks.stopAccessing(*accessedURL);
    }
}

} // namespace KarvelloUI
