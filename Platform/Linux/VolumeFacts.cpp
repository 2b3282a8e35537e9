#include "Platform/Files/VolumeFacts.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <fmt/format.h>
#include <linux/fs.h>
#include <linux/magic.h>
#include <sys/ioctl.h>
#include <sys/vfs.h>

namespace Platform {

namespace {

// File systems whose names are told apart by case unless a folder carries the casefold flag. The numbers that
// <linux/magic.h> does not have are those of the file systems' own headers.
constexpr std::int64_t kZfsMagic = 0x2fc12fc1;
constexpr std::int64_t kBcachefsMagic = 0xca451a4e;
constexpr std::int64_t kJfsMagic = 0x3153464a;
constexpr std::array<std::int64_t, 12> kCaseSensitiveFileSystems{
    EXT4_SUPER_MAGIC, // ext2 and ext3 share it
    XFS_SUPER_MAGIC,
    BTRFS_SUPER_MAGIC,
    F2FS_SUPER_MAGIC,
    TMPFS_MAGIC,
    RAMFS_MAGIC,
    OVERLAYFS_SUPER_MAGIC,
    SQUASHFS_MAGIC,
    NILFS_SUPER_MAGIC,
    kZfsMagic,
    kBcachefsMagic,
    kJfsMagic,
};

// <linux/fs.h> of older kernels does not have it (ext4, f2fs, tmpfs: names are folded in this folder).
constexpr std::uint32_t kCasefoldFlag = 0x40000000;

} // namespace

std::optional<std::string> volumeIdentifier(int descriptor)
{
    struct statfs facts{};
    if (fstatfs(descriptor, &facts) != 0) {
        return std::nullopt;
    }
    const auto parts = std::bit_cast<std::array<std::uint32_t, 2>>(facts.f_fsid);
    if (parts[0] == 0 && parts[1] == 0) {
        return std::nullopt;
    }
    return fmt::format("{:08x}{:08x}", parts[0], parts[1]);
}

bool tellsNamesApartByCase(int folderDescriptor)
{
    struct statfs facts{};
    if (fstatfs(folderDescriptor, &facts) != 0) {
        return false;
    }
    const auto magic = static_cast<std::int64_t>(facts.f_type);
    if (std::ranges::find(kCaseSensitiveFileSystems, magic) == kCaseSensitiveFileSystems.end()) {
        return false;
    }
    // A file system that knows no flags has no folded folders either.
    std::uint32_t flags = 0;
    return ioctl(folderDescriptor, FS_IOC_GETFLAGS, &flags) != 0 || (flags & kCasefoldFlag) == 0;
}

} // namespace Platform
