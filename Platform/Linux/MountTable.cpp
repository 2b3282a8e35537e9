#include "Platform/Linux/MountTable.h"

#include "Platform/Base/FileURL.h"

#include <algorithm>
#include <libmount/libmount.h>
#include <memory>

namespace Platform {

namespace {

struct ReleaseTable {
    void operator()(libmnt_table* table) const { mnt_unref_table(table); }
};

struct ReleaseIterator {
    void operator()(libmnt_iter* iterator) const { mnt_free_iter(iterator); }
};

std::string text(const char* value)
{
    return value == nullptr ? std::string() : std::string(value);
}

} // namespace

bool MountTable::Mount::hasOption(std::string_view name) const
{
    std::string_view rest = options;
    while (!rest.empty()) {
        const auto comma = std::min(rest.find(','), rest.size());
        if (rest.substr(0, comma) == name) {
            return true;
        }
        rest.remove_prefix(std::min(comma + 1, rest.size()));
    }
    return false;
}

bool MountTable::Mount::isBindMount() const
{
    // A subvolume of btrfs is mounted by its path in the file system, and is a volume all the same.
    return root != "/" && fileSystemType != "btrfs";
}

MountTable MountTable::read()
{
    MountTable result;
    const std::unique_ptr<libmnt_table, ReleaseTable> table(mnt_new_table_from_file("/proc/self/mountinfo"));
    const std::unique_ptr<libmnt_iter, ReleaseIterator> iterator(mnt_new_iter(MNT_ITER_FORWARD));
    if (!table || !iterator) {
        return result;
    }
    libmnt_fs* mount = nullptr;
    while (mnt_table_next_fs(table.get(), iterator.get(), &mount) == 0) {
        result.m_mounts.push_back({
            .number = static_cast<std::uint64_t>(mnt_fs_get_id(mount)),
            .path = text(mnt_fs_get_target(mount)),
            .root = text(mnt_fs_get_root(mount)),
            .fileSystemType = text(mnt_fs_get_fstype(mount)),
            .options = text(mnt_fs_get_options(mount)),
        });
    }
    return result;
}

const MountTable::Mount* MountTable::find(std::uint64_t number) const
{
    const auto found = std::ranges::find(m_mounts, number, &Mount::number);
    return found == m_mounts.end() ? nullptr : &*found;
}

bool MountTable::hasMountAtOrBelow(std::string_view path) const
{
    return std::ranges::any_of(
        m_mounts, [path](const Mount& mount) { return mount.path == path || isPathInside(mount.path, path); });
}

} // namespace Platform
