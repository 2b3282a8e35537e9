#include "Platform/Linux/TrashPlaces.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Platform {

namespace {

// A rename on these is another machine's or another program's business.
constexpr std::array<std::string_view, 12> kForeignFileSystems{
    "nfs", "nfs4", "cifs", "smb3", "smbfs", "9p", "ceph", "afs", "autofs", "ecryptfs", "davfs", "fuse"};

/// Shows only a part of its file system. A subvolume of btrfs is mounted by its path in the file system too, and is a
/// volume all the same.
bool isBindMount(const MountTable::Mount& mount)
{
    constexpr std::uint64_t kTopOfSubvolume = 256;
    if (mount.root == "/") {
        return false;
    }
    const auto top = readItemStatus(AT_FDCWD, mount.path.c_str(), StatusDetail::walk);
    return mount.fileSystemType != "btrfs" || !top || top->fileNumber != kTopOfSubvolume;
}

bool mayHoldTrash(const MountTable::Mount& mount)
{
    const auto& type = mount.fileSystemType;
    const bool isForeign =
        std::ranges::find(kForeignFileSystems, type) != kForeignFileSystems.end() || type.starts_with("fuse.");
    return !isForeign && !isBindMount(mount) && mount.path != "/" && !mount.hasOption("x-gvfs-notrash");
}

/// A real folder with the sticky bit, so that no user can take another's away.
bool isSoundSharedTrash(const FileURL& folder)
{
    struct stat found{};
    return lstat(folder.path().c_str(), &found) == 0 && S_ISDIR(found.st_mode) && (found.st_mode & S_ISVTX) != 0;
}

} // namespace

FileURL homeTrashURL(const FileURL& dataHome)
{
    return dataHome.child("Trash", DirectoryHint::isFolder);
}

std::vector<VolumeTrashPlace> volumeTrashPlaces(const FolderHandle& folder, const MountTable& mounts)
{
    const auto* const mount = mounts.find(folder.status().mountNumber);
    if (mount == nullptr || !mayHoldTrash(*mount)) {
        return {};
    }
    const auto topFolder = FileURL::folder(mount->path);
    const auto user = geteuid();
    std::vector<VolumeTrashPlace> places;
    if (const auto shared = topFolder.child(".Trash", DirectoryHint::isFolder); isSoundSharedTrash(shared)) {
        places.push_back({shared.child(fmt::format("{}", user), DirectoryHint::isFolder), topFolder});
    }
    places.push_back({topFolder.child(fmt::format(".Trash-{}", user), DirectoryHint::isFolder), topFolder});
    return places;
}

} // namespace Platform
