#include "Platform/Linux/LinuxBookmarks.h"

#include "Platform/Files/OpenFolder.h"
#include "Platform/Linux/FolderBookmark.h"

namespace Platform {

namespace {

/// The path is what the sentence calls the thing that could not be opened.
FileError malformedBookmark()
{
    return {.kind = FileErrorKind::corrupt, .operation = FileOperation::read, .path = "bookmark"};
}

} // namespace

std::expected<BookmarkData, FileError> LinuxBookmarks::create(const FileURL& folder) const
{
    const auto found = FolderBookmark::read(folder);
    if (!found) {
        return std::unexpected(found.error());
    }
    auto bytes = encodeJSON(*found);
    if (!bytes) {
        return std::unexpected(malformedBookmark());
    }
    return BookmarkData{*std::move(bytes)};
}

std::expected<ResolvedBookmark, FileError> LinuxBookmarks::resolve(const BookmarkData& bookmark) const
{
    const auto noted = decodeJSON<FolderBookmark>(bookmark.bytes);
    if (!noted) {
        return std::unexpected(malformedBookmark());
    }
    const auto found = FolderBookmark::read(noted->url);
    if (!found) {
        return std::unexpected(found.error());
    }
    return ResolvedBookmark{.url = found->url, .isStale = !found->isSameFolder(*noted)};
}

bool LinuxBookmarks::startAccessing(const FileURL& folder) const
{
    return openFolder(folder.path().c_str()).has_value();
}

void LinuxBookmarks::stopAccessing(const FileURL& /*folder*/) const {}

} // namespace Platform
