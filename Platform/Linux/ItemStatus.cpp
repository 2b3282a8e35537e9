#include "Platform/Files/ItemStatus.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace Platform {

namespace {

constexpr unsigned kWalkFields = STATX_TYPE | STATX_SIZE | STATX_BLOCKS | STATX_MTIME | STATX_INO | STATX_MNT_ID;
constexpr std::int64_t kBytesPerBlock = 512; // statx(2): stx_blocks counts blocks of 512 bytes

FileType fileTypeOf(unsigned mode)
{
    switch (mode & S_IFMT) {
    case S_IFREG:
        return FileType::regular;
    case S_IFDIR:
        return FileType::directory;
    case S_IFLNK:
        return FileType::symbolicLink;
    default:
        return FileType::other;
    }
}

} // namespace

std::expected<ItemStatus, int> readItemStatus(int folderDescriptor, const char* name, StatusDetail detail)
{
    struct statx found{};
    const unsigned fields = detail == StatusDetail::whole ? kWalkFields | STATX_BTIME : kWalkFields;
    const int flags = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT | (*name == '\0' ? AT_EMPTY_PATH : 0);
    if (statx(folderDescriptor, name, flags, fields, &found) != 0) {
        return std::unexpected(errno);
    }
    ItemStatus status;
    status.type = fileTypeOf(found.stx_mode);
    status.size = static_cast<std::int64_t>(found.stx_size);
    status.allocatedSize = static_cast<std::int64_t>(found.stx_blocks) * kBytesPerBlock;
    status.modificationDate = Date::fromUnixTime(found.stx_mtime.tv_sec, found.stx_mtime.tv_nsec);
    if ((found.stx_mask & STATX_BTIME) != 0) {
        status.creationDate = Date::fromUnixTime(found.stx_btime.tv_sec, found.stx_btime.tv_nsec);
    }
    status.fileNumber = found.stx_ino;
    status.deviceNumber = makedev(found.stx_dev_major, found.stx_dev_minor);
    status.mountNumber = (found.stx_mask & STATX_MNT_ID) != 0 ? found.stx_mnt_id : 0;
    status.isMountPoint = (found.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0;
    return status;
}

std::optional<std::string> readFileHandle(int folderDescriptor, const char* name)
{
    alignas(file_handle) std::array<unsigned char, sizeof(file_handle) + MAX_HANDLE_SZ> storage{};
    auto* const handle = reinterpret_cast<file_handle*>(storage.data());
    handle->handle_bytes = MAX_HANDLE_SZ;
    int mount = 0;
    if (name_to_handle_at(folderDescriptor, name, handle, &mount, *name == '\0' ? AT_EMPTY_PATH : 0) != 0) {
        return std::nullopt;
    }
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    const auto append = [&](unsigned byte) {
        text += digits[byte >> 4U & 15U];
        text += digits[byte & 15U];
    };
    const std::size_t length = std::min<std::size_t>(handle->handle_bytes, MAX_HANDLE_SZ);
    text.reserve(2 + 2 * length);
    append(static_cast<unsigned>(handle->handle_type));
    for (std::size_t index = 0; index < length; ++index) {
        append(storage[sizeof(file_handle) + index]);
    }
    return text;
}

} // namespace Platform
