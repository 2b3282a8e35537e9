#include "Platform/Linux/AnchoredFolder.h"

#include "Platform/Files/ItemStatus.h"

#include <cerrno>
#include <fcntl.h>
#include <linux/openat2.h>
#include <string>
#include <sys/syscall.h>

namespace Platform {

namespace {

constexpr int kNamingFlags = O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

FileDescriptor openBeneath(int root, const char* relativePath)
{
    open_how how{};
    how.flags = static_cast<unsigned>(kNamingFlags);
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS | RESOLVE_NO_MAGICLINKS | RESOLVE_NO_XDEV;
    return FileDescriptor(static_cast<int>(syscall(SYS_openat2, root, relativePath, &how, sizeof how)));
}

} // namespace

std::expected<std::shared_ptr<const FolderHandle>, FileError> openFolderOfItem(
    const FolderAnchor& root, const FileURL& item, FileOperation operation)
{
    const auto failure = [&](int systemError) {
        return std::unexpected(FileError::fromSystemError(systemError, operation, item.path()));
    };
    if (!isPathInside(item.path(), root.url.path())) {
        return std::unexpected(
            FileError{.kind = FileErrorKind::itemChanged, .operation = operation, .path = item.path()});
    }
    FileDescriptor rootFolder(open(root.url.path().c_str(), kNamingFlags));
    if (!rootFolder.isOpen()) {
        return failure(errno);
    }
    const auto rootStatus = readItemStatus(rootFolder.get(), "", StatusDetail::walk);
    if (!rootStatus) {
        return failure(rootStatus.error());
    }
    if (rootStatus->deviceNumber != root.systemNumber || rootStatus->fileNumber != root.systemFileNumber) {
        return std::unexpected(
            FileError{.kind = FileErrorKind::itemChanged, .operation = operation, .path = item.path()});
    }
    auto folderURL = item.deletingLastPathComponent();
    if (folderURL.path().size() > root.url.path().size()) {
        auto folder = openBeneath(rootFolder.get(), folderURL.path().c_str() + root.url.path().size() + 1);
        if (!folder.isOpen()) {
            return failure(errno);
        }
        rootFolder = std::move(folder);
    }
    return std::make_shared<const FolderHandle>(std::move(rootFolder), std::move(folderURL));
}

} // namespace Platform
