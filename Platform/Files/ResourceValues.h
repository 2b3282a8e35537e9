#pragma once

#include "Platform/Base/Date.h"

#include <cstdint>
#include <optional>
#include <string>

namespace Platform {

/// What one look at an item tells, symbolic links not followed. An absent value is one that the file system does not
/// tell.
struct ResourceValues {
    std::optional<bool> isDirectory = {};
    std::optional<bool> isRegularFile = {};
    std::optional<bool> isSymbolicLink = {};
    /// Bytes of content.
    std::optional<std::int64_t> fileSize = {};
    /// Bytes that the volume gives the content (so a sparse file counts what it occupies).
    std::optional<std::int64_t> fileAllocatedSize = {};
    /// `fileAllocatedSize` and what belongs to the item beside its content.
    std::optional<std::int64_t> totalFileAllocatedSize = {};
    std::optional<Date> contentModificationDate = {};
    /// Inode and device: items that agree in both are names of one file.
    std::optional<std::uint64_t> systemFileNumber = {};
    std::optional<std::uint64_t> systemNumber = {};
    /// The item lies on another volume than the folder that holds it: a mount point, a bind mount, a subvolume.
    bool isOnOtherVolume = false;
};

/// What tells an item from another that takes its place, from the same look.
struct IdentityValues {
    ResourceValues values;
    /// The file handle in hexadecimal digits: inode and generation, which a file made anew does not repeat.
    std::optional<std::string> fileResourceIdentifier = {};
    std::optional<std::string> volumeIdentifier = {};
};

enum class FileType : std::uint8_t { regular, directory, symbolicLink, other };

/// The attributes of an item, symbolic links not followed.
struct FileAttributes {
    std::optional<FileType> type = {};
    std::optional<std::uint64_t> systemFileNumber = {};
    std::optional<std::uint64_t> systemNumber = {};
    std::optional<Date> creationDate = {};
    std::optional<Date> modificationDate = {};
};

} // namespace Platform
