#include "Platform/Files/OpenFolder.h"

#include "Platform/Files/ItemStatus.h"

#include <cerrno>
#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/syscall.h>

namespace Platform {

namespace {

constexpr int kListingFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK;

std::expected<FileDescriptor, int> opened(int descriptor)
{
    if (descriptor < 0) {
        return std::unexpected(errno);
    }
    return FileDescriptor(descriptor);
}

/// Only the owner of a folder may read it without touching its access time (open(2), O_NOATIME).
template <typename Open>
std::expected<FileDescriptor, int> withoutTouchingAccessTime(Open open)
{
    const int descriptor = open(kListingFlags | O_NOATIME);
    return opened(descriptor >= 0 || errno != EPERM ? descriptor : open(kListingFlags));
}

int openWithinVolume(int folderDescriptor, const char* name, int flags)
{
    open_how how{};
    how.flags = static_cast<unsigned>(flags);
    how.resolve = RESOLVE_NO_XDEV | RESOLVE_NO_SYMLINKS | RESOLVE_NO_MAGICLINKS;
    return static_cast<int>(syscall(SYS_openat2, folderDescriptor, name, &how, sizeof how));
}

/// For kernels before 5.6 and sandboxes that refuse openat2(2): the same answer in three calls.
std::expected<FileDescriptor, int> openThenCheckVolume(int folderDescriptor, const char* name)
{
    auto folder = withoutTouchingAccessTime([&](int flags) { return openat(folderDescriptor, name, flags); });
    if (!folder) {
        return folder;
    }
    const auto parentStatus = readItemStatus(folderDescriptor, "", StatusDetail::walk);
    const auto status = readItemStatus(folder->get(), "", StatusDetail::walk);
    if (!parentStatus || !status) {
        return std::unexpected(status ? parentStatus.error() : status.error());
    }
    if (parentStatus->deviceNumber != status->deviceNumber || parentStatus->mountNumber != status->mountNumber) {
        return std::unexpected(EXDEV);
    }
    return folder;
}

} // namespace

std::expected<FileDescriptor, int> openFolder(const char* path)
{
    return withoutTouchingAccessTime([&](int flags) { return open(path, flags); });
}

std::expected<FileDescriptor, int> openFolderIn(int folderDescriptor, const char* name)
{
    auto folder = withoutTouchingAccessTime([&](int flags) { return openWithinVolume(folderDescriptor, name, flags); });
    if (!folder && (folder.error() == ENOSYS || folder.error() == EPERM)) {
        return openThenCheckVolume(folderDescriptor, name);
    }
    return folder;
}

std::expected<FileDescriptor, int> openParentFolder(int folderDescriptor)
{
    return opened(openat(folderDescriptor, "..", O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

} // namespace Platform
