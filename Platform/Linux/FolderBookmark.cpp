#include "Platform/Linux/FolderBookmark.h"

#include "Platform/Files/FileDescriptor.h"
#include "Platform/Files/ItemStatus.h"

#include <cerrno>
#include <fcntl.h>

namespace Platform {

std::expected<FolderBookmark, FileError> FolderBookmark::read(const FileURL& url)
{
    const auto failure = [&](int systemError) {
        return std::unexpected(FileError::fromSystemError(systemError, FileOperation::read, url.path()));
    };
    const FileDescriptor folder(open(url.path().c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!folder.isOpen()) {
        return failure(errno);
    }
    const auto status = readItemStatus(folder.get(), "", StatusDetail::whole);
    if (!status) {
        return failure(status.error());
    }
    return FolderBookmark{
        .url = FileURL::folder(url.path()),
        .device = status->deviceNumber,
        .inode = status->fileNumber,
        .fileHandle = readFileHandle(folder.get(), ""),
        .birthTime = status->creationDate,
    };
}

bool FolderBookmark::isSameFolder(const FolderBookmark& other) const
{
    if (inode != other.inode || fileHandle != other.fileHandle || birthTime != other.birthTime) {
        return false;
    }
    return device == other.device || (fileHandle && birthTime);
}

} // namespace Platform
