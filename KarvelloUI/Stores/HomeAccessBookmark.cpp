#include "KarvelloUI/Stores/HomeAccessBookmark.h"

#include "Platform/Base/Text.h"

#include <utility>

namespace KarvelloUI {

namespace {

bool isOrMayBeSymbolicLink(const Platform::FileURL& url, const Platform::FileManager& fileManager)
{
    const auto values = fileManager.resourceValues(url);
    return !values || values->isSymbolicLink.value_or(true);
}

} // namespace

std::string HomeAccessBookmarkError::errorDescription() const
{
    const auto words = [this]() -> std::string {
        switch (kind) {
        case Kind::notDirectory:
            return "Selected item is not a folder: ";
        case Kind::notCurrentUserHome:
            return "Selected folder is not the current user's home directory or a descendant: ";
        }
        return {};
    };
    return words() + Platform::Text::escapingInvalidUTF8(path);
}

bool HomeAccessBookmark::isAllowedHomeAccessGrant(std::string_view path, const Platform::FileURL& currentHome)
{
    // No relative path is a home.
    if (!path.starts_with('/') || currentHome.isRoot()) {
        return false;
    }
    const Platform::FileURL url(path);
    return url.path() == currentHome.path() || url.path() == currentHome.path() + "/Library";
}

std::expected<HomeAccessBookmark, FolderAccessError<HomeAccessBookmarkError>> HomeAccessBookmark::make(
    const Platform::FileURL& picked, const Platform::FileURL& currentHome, const Platform::FileManager& fileManager,
    const Platform::Bookmarks& bookmarks, Platform::Date now)
{
    const auto refusal = [&](HomeAccessBookmarkError::Kind kind) {
        return std::unexpected(HomeAccessBookmarkError{kind, picked.path()});
    };
    const Platform::BookmarkAccess access(bookmarks, picked);
    if (!fileManager.directoryExists(picked)) {
        return refusal(HomeAccessBookmarkError::Kind::notDirectory);
    }
    if (isOrMayBeSymbolicLink(picked, fileManager) || !isAllowedHomeAccessGrant(picked.path(), currentHome)
        || !isAllowedHomeAccessGrant(fileManager.resolvingSymbolicLinks(picked).path(), currentHome)) {
        return refusal(HomeAccessBookmarkError::Kind::notCurrentUserHome);
    }
    auto bookmark = bookmarks.create(picked);
    if (!bookmark) {
        return std::unexpected(std::move(bookmark.error()));
    }
    return HomeAccessBookmark{
        .fallbackPath = picked.path(),
        .effectiveHomeFallbackPath = currentHome.path(),
        .bookmarkData = *std::move(bookmark),
        .createdAt = now,
    };
}

std::expected<ResolvedHomeAccessBookmark, Platform::FileError> HomeAccessBookmark::resolve(
    const Platform::FileURL& currentHome, const Platform::FileManager& fileManager,
    const Platform::Bookmarks& bookmarks) const
{
    auto resolved = bookmarks.resolve(bookmarkData);
    if (!resolved) {
        return std::unexpected(std::move(resolved.error()));
    }
    const auto& url = resolved->url;
    const bool isGrant = isAllowedHomeAccessGrant(url.path(), currentHome)
        && isAllowedHomeAccessGrant(fileManager.resolvingSymbolicLinks(url).path(), currentHome);
    return ResolvedHomeAccessBookmark{
        .grantedURL = url,
        .effectiveHomeDirectory = currentHome,
        .bookmarkWasStale = resolved->isStale || !isGrant || isOrMayBeSymbolicLink(url, fileManager),
        .originalBookmark = *this,
    };
}

} // namespace KarvelloUI
