#pragma once

#include "Platform/Base/Date.h"
#include "Platform/Files/ResourceValues.h"

#include <cstdint>
#include <expected>
#include <optional>
#include <string>

namespace Platform {

/// One look at an item, symbolic links not followed and nothing mounted on the way.
struct ItemStatus {
    FileType type = FileType::other;
    std::int64_t size = 0;
    std::int64_t allocatedSize = 0;
    Date modificationDate;
    std::optional<Date> creationDate;
    std::uint64_t fileNumber = 0;
    std::uint64_t deviceNumber = 0;
    std::uint64_t mountNumber = 0;
    bool isMountPoint = false;

    /// The same folder on the same mount, as far as numbers tell.
    [[nodiscard]] bool isSamePlace(const ItemStatus& other) const
    {
        return fileNumber == other.fileNumber && deviceNumber == other.deviceNumber && mountNumber == other.mountNumber;
    }
};

enum class StatusDetail : std::uint8_t { walk, whole };

/// Looks at `name` in the open folder (an absolute path ignores the folder; an empty name is the open item itself).
/// `walk` leaves the creation date out. The error is the system's number.
[[nodiscard]] std::expected<ItemStatus, int> readItemStatus(
    int folderDescriptor, const char* name, StatusDetail detail);

/// The item's file handle in hexadecimal digits; nothing where the file system has none.
[[nodiscard]] std::optional<std::string> readFileHandle(int folderDescriptor, const char* name);

} // namespace Platform
