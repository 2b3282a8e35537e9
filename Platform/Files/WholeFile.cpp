#include "Platform/Files/WholeFile.h"

#include "Platform/Files/FileDescriptor.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <fmt/format.h>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace Platform {

namespace {

constexpr std::size_t kReadBytes = std::size_t{64} * 1024;
constexpr std::string_view kUnfinishedPrefix = ".karvello-";
constexpr std::string_view kUnfinishedSuffix = ".tmp";

/// For file systems without O_TMPFILE: a name of its own first, then the final one.
int addThroughTemporaryName(int folder, const char* name, std::string_view bytes, mode_t mode)
{
    std::random_device random;
    const auto temporaryName =
        fmt::format("{}{:08x}{:08x}{}", kUnfinishedPrefix, random(), random(), kUnfinishedSuffix);
    int error = 0;
    {
        const FileDescriptor file(
            openat(folder, temporaryName.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode));
        if (!file.isOpen()) {
            return errno;
        }
        error = writeAll(file.get(), bytes);
    }
    if (error == 0 && renameat2(folder, temporaryName.c_str(), folder, name, RENAME_NOREPLACE) != 0) {
        error = errno;
    }
    if (error != 0) {
        unlinkat(folder, temporaryName.c_str(), 0);
    }
    return error;
}

} // namespace

int addWholeFile(int folderDescriptor, const char* name, std::string_view bytes, mode_t mode)
{
    const FileDescriptor file(openat(folderDescriptor, ".", O_WRONLY | O_TMPFILE | O_CLOEXEC, mode));
    if (!file.isOpen()) {
        return errno == EOPNOTSUPP || errno == EISDIR ? addThroughTemporaryName(folderDescriptor, name, bytes, mode)
                                                      : errno;
    }
    if (const int error = writeAll(file.get(), bytes); error != 0) {
        return error;
    }
    // open(2), O_TMPFILE: the way to give the file a name without a privilege.
    const auto path = fmt::format("/proc/self/fd/{}", file.get());
    return linkat(AT_FDCWD, path.c_str(), folderDescriptor, name, AT_SYMLINK_FOLLOW) == 0 ? 0 : errno;
}

bool isUnfinishedFile(std::string_view name)
{
    return name.starts_with(kUnfinishedPrefix) && name.ends_with(kUnfinishedSuffix);
}

std::expected<std::string, int> readWholeFile(int folderDescriptor, const char* name, std::size_t maximumBytes)
{
    const FileDescriptor file(
        openat(folderDescriptor, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file.isOpen()) {
        return std::unexpected(errno);
    }
    struct stat found{};
    if (fstat(file.get(), &found) != 0) {
        return std::unexpected(errno);
    }
    if (!S_ISREG(found.st_mode)) {
        return std::unexpected(EINVAL);
    }
    std::string bytes;
    int interruptions = 0;
    while (true) {
        const auto offset = bytes.size();
        if (offset > maximumBytes) {
            return std::unexpected(EFBIG);
        }
        bytes.resize(offset + std::min(kReadBytes, maximumBytes + 1 - offset));
        const auto count = read(file.get(), bytes.data() + offset, bytes.size() - offset);
        if (count < 0 && (errno != EINTR || ++interruptions > kMaximumInterruptions)) {
            return std::unexpected(errno);
        }
        bytes.resize(offset + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        if (count == 0) {
            return bytes;
        }
    }
}

int writeAll(int descriptor, std::string_view bytes)
{
    int interruptions = 0;
    while (!bytes.empty()) {
        const auto written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && (errno != EINTR || ++interruptions > kMaximumInterruptions)) {
            return errno;
        }
        if (written == 0) {
            return EIO;
        }
        bytes.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
    return 0;
}

} // namespace Platform
