#include "Platform/Files/FileLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>

namespace Platform {

namespace {

// Asking does not queue, so it must be frequent: one who locks again at once leaves gaps of some 10 microseconds.
constexpr std::chrono::microseconds kPause{200};

FileDescriptor openLockFile(const FileURL& url)
{
    constexpr int flags = O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    return FileDescriptor(open(url.path().c_str(), flags, 0600));
}

/// Whether the open file still has the name: a lock on a file that was taken away keeps nobody out.
bool isStillNamed(const struct stat& opened, const FileURL& url)
{
    struct stat named{};
    return lstat(url.path().c_str(), &named) == 0 && named.st_dev == opened.st_dev && named.st_ino == opened.st_ino;
}

} // namespace

std::expected<FileLock, FileLockFailure> FileLock::acquire(const FileURL& url, std::chrono::milliseconds maximumWait)
{
    const auto deadline = std::chrono::steady_clock::now() + maximumWait;
    while (true) {
        auto file = openLockFile(url);
        struct stat opened{};
        if (!file.isOpen() || fstat(file.get(), &opened) != 0 || !S_ISREG(opened.st_mode)) {
            return std::unexpected(FileLockFailure::unavailable);
        }
        while (flock(file.get(), LOCK_EX | LOCK_NB) != 0) {
            if (errno != EWOULDBLOCK && errno != EINTR) {
                return std::unexpected(FileLockFailure::unavailable);
            }
            if (std::chrono::steady_clock::now() >= deadline) {
                return std::unexpected(FileLockFailure::busy);
            }
            std::this_thread::sleep_for(kPause);
        }
        if (isStillNamed(opened, url)) {
            return FileLock(std::move(file));
        }
        if (std::chrono::steady_clock::now() >= deadline) {
            return std::unexpected(FileLockFailure::busy);
        }
    }
}

} // namespace Platform
