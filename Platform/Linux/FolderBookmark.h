#pragma once

#include "Platform/Base/Date.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Base/JSONCoding.h"
#include "Platform/Files/FileError.h"

#include <cstdint>
#include <expected>
#include <optional>
#include <string>

namespace Platform {

/// What a bookmark of `LinuxBookmarks` holds.
struct FolderBookmark {
    FileURL url;
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    /// In hexadecimal digits; nothing where the file system has none.
    std::optional<std::string> fileHandle = {};
    std::optional<Date> birthTime = {};

    /// The folder that stands at `url` now. A link in its place is no folder.
    static std::expected<FolderBookmark, FileError> read(const FileURL& url);

    [[nodiscard]] bool isSameFolder(const FolderBookmark& other) const;
};

template <>
struct JSONFields<FolderBookmark> {
    static void code(auto& coder, auto& bookmark)
    {
        coder.field("url", bookmark.url);
        coder.field("device", bookmark.device);
        coder.field("inode", bookmark.inode);
        coder.field("fileHandle", bookmark.fileHandle);
        coder.field("birthTime", bookmark.birthTime);
    }
};

} // namespace Platform
