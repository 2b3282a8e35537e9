#include "Platform/Files/StreamFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace Platform {

namespace {

bool isStream(const struct stat& status)
{
    return S_ISCHR(status.st_mode) || S_ISFIFO(status.st_mode);
}

} // namespace

std::expected<FileDescriptor, FileError> openStreamForWriting(const FileURL& url)
{
    const auto failure = [&](int systemError) {
        return std::unexpected(FileError::fromSystemError(systemError, FileOperation::write, url.path()));
    };
    // Looked at before, since merely opening some things does something, and after, since the path may have changed.
    struct stat status{};
    if (stat(url.path().c_str(), &status) != 0) {
        return failure(errno);
    }
    if (!isStream(status)) {
        return failure(EINVAL);
    }
    FileDescriptor descriptor(open(url.path().c_str(), O_WRONLY | O_NOCTTY | O_CLOEXEC));
    if (!descriptor.isOpen()) {
        return failure(errno);
    }
    if (fstat(descriptor.get(), &status) != 0) {
        return failure(errno);
    }
    if (!isStream(status)) {
        return failure(EINVAL);
    }
    return descriptor;
}

} // namespace Platform
