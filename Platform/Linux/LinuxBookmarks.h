#pragma once

#include "Platform/Services/Bookmarks.h"

namespace Platform {

/// Bookmarks of a system that keeps none itself: a record of where the folder is and of what tells it from any other.
///
/// A bookmark never follows its folder to another place. Consent was given to what lies at a path that the user saw; a
/// folder that was moved may be part of something else by now, so it is missing, and its successor at the path is stale.
/// The number of a device changes when volumes are mounted anew; it decides only where the file system gives no file
/// handle or no birth time.
///
/// Access is what the user's permissions, or a sandbox, allow at the moment: there is nothing to hold open.
class LinuxBookmarks final : public Bookmarks {
public:
    [[nodiscard]] std::expected<BookmarkData, FileError> create(const FileURL& folder) const override;
    [[nodiscard]] std::expected<ResolvedBookmark, FileError> resolve(const BookmarkData& bookmark) const override;
    [[nodiscard]] bool startAccessing(const FileURL& folder) const override;
    void stopAccessing(const FileURL& folder) const override;
};

} // namespace Platform
