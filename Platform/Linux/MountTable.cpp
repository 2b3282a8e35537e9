#include "Platform/Linux/MountTable.h"

#include "Platform/Base/FileURL.h"
#include "Platform/Files/WholeFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <libmount/libmount.h>
#include <memory>

namespace Platform {

namespace {

constexpr std::size_t kMaximumTableBytes = std::size_t{64} * 1024 * 1024;

struct ReleaseTable {
    void operator()(libmnt_table* table) const { mnt_unref_table(table); }
};

struct ReleaseIterator {
    void operator()(libmnt_iter* iterator) const { mnt_free_iter(iterator); }
};

struct CloseStream {
    void operator()(std::FILE* stream) const { std::fclose(stream); }
};

std::string text(const char* value)
{
    return value == nullptr ? std::string() : std::string(value);
}

/// libmount takes a read that fails for the end of the table, so the bytes are read apart.
std::expected<std::vector<MountTable::Mount>, int> parsed(const char* path)
{
    auto bytes = readWholeFile(AT_FDCWD, path, kMaximumTableBytes);
    if (!bytes) {
        return std::unexpected(bytes.error());
    }
    std::vector<MountTable::Mount> mounts;
    if (bytes->empty()) {
        return mounts;
    }
    const std::unique_ptr<std::FILE, CloseStream> stream(fmemopen(bytes->data(), bytes->size(), "r"));
    const std::unique_ptr<libmnt_table, ReleaseTable> table(mnt_new_table());
    const std::unique_ptr<libmnt_iter, ReleaseIterator> iterator(mnt_new_iter(MNT_ITER_FORWARD));
    if (!stream || !table || !iterator || mnt_table_parse_stream(table.get(), stream.get(), path) != 0) {
        return std::unexpected(EIO);
    }
    libmnt_fs* mount = nullptr;
    while (mnt_table_next_fs(table.get(), iterator.get(), &mount) == 0) {
        mounts.push_back({
            .number = static_cast<std::uint64_t>(mnt_fs_get_id(mount)),
            .path = text(mnt_fs_get_target(mount)),
            .root = text(mnt_fs_get_root(mount)),
            .fileSystemType = text(mnt_fs_get_fstype(mount)),
            .options = text(mnt_fs_get_options(mount)),
        });
    }
    return mounts;
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

std::expected<MountTable, int> MountTable::read(const char* mountInfoPath, const char* fileSystemsPath)
{
    auto mounts = parsed(mountInfoPath);
    if (!mounts || mounts->empty()) {
        return std::unexpected(mounts ? EIO : mounts.error());
    }
    // The system does not keep the options that are meant for programs, such as "x-gvfs-notrash".
    if (const auto fileSystems = parsed(fileSystemsPath)) {
        for (auto& mount : *mounts) {
            const auto same = std::ranges::find(*fileSystems, mount.path, &Mount::path);
            if (same != fileSystems->end()) {
                mount.options.append(",").append(same->options);
            }
        }
    }
    MountTable table;
    table.m_mounts = *std::move(mounts);
    return table;
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
