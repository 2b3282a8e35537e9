#include "Platform/Files/FileLock.h"

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>

namespace Platform {

namespace {

// Asking does not queue, so it must be frequent, and one who had a lock just now must not take the next at once: the
// others would have to ask in the few microseconds between.
constexpr std::chrono::microseconds kPause{200};
constexpr std::chrono::microseconds kRestAfterALock{1000};

using Clock = std::chrono::steady_clock;

/// When this process last gave a lock back.
std::atomic<Clock::rep> lastEnd{0};

void letOthersAsk()
{
    const Clock::time_point end{Clock::duration(lastEnd.load())};
    if (Clock::now() - end < kRestAfterALock) {
        std::this_thread::sleep_until(end + kRestAfterALock);
    }
}

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

FileLock::~FileLock()
{
    if (m_file.isOpen()) {
        m_file.reset();
        lastEnd = Clock::now().time_since_epoch().count();
    }
}

std::expected<FileLock, FileLockFailure> FileLock::acquire(const FileURL& url, std::chrono::milliseconds maximumWait)
{
    const auto deadline = Clock::now() + maximumWait;
    letOthersAsk();
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
            if (Clock::now() >= deadline) {
                return std::unexpected(FileLockFailure::busy);
            }
            std::this_thread::sleep_for(kPause);
        }
        if (isStillNamed(opened, url)) {
            return FileLock(std::move(file));
        }
        if (Clock::now() >= deadline) {
            return std::unexpected(FileLockFailure::busy);
        }
    }
}

} // namespace Platform
