#include "Platform/Files/RegularFile.h"

#include "Platform/Files/FileDescriptor.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <fmt/format.h>
#include <iterator>
#include <sys/stat.h>
#include <sys/uio.h>

namespace Platform {

namespace {

// A file of no more than this is wholly read by one sample.
constexpr std::int64_t kSmallFileBytes = std::int64_t{64} * 1024;
constexpr std::int64_t kReadAheadBytes = std::int64_t{2} * 1024 * 1024;
// Leaving the cache costs the system a round through all processors now and then: not for every read.
constexpr std::int64_t kReleaseStrideBytes = std::int64_t{8} * 1024 * 1024;
constexpr std::int64_t kCacheProbes = 4;

ContentState contentStateOf(const struct stat& found)
{
    return {
        .fileNumber = found.st_ino,
        .deviceNumber = found.st_dev,
        .size = found.st_size,
        .modified = {.seconds = found.st_mtim.tv_sec, .nanoseconds = found.st_mtim.tv_nsec},
        .changed = {.seconds = found.st_ctim.tv_sec, .nanoseconds = found.st_ctim.tv_nsec},
    };
}

/// Bytes from the system's cache only: gives up, as an error, rather than wait for a disk.
ssize_t readCached(int descriptor, std::int64_t offset, std::span<std::byte> buffer)
{
    const iovec piece{.iov_base = buffer.data(), .iov_len = buffer.size()};
    return preadv2(descriptor, &piece, 1, offset, RWF_NOWAIT);
}

class RegularFile final : public ReadableFile {
public:
    RegularFile(FileDescriptor descriptor, const ContentState& state, std::string path, ReadingPlan plan)
        : m_descriptor(std::move(descriptor))
        , m_state(state)
        , m_path(std::move(path))
        , m_plan(plan)
    {
        if (m_plan == ReadingPlan::samples) {
            if (m_state.size > kSmallFileBytes) {
                advise(0, 0, POSIX_FADV_RANDOM);
            }
        } else {
            m_isFromDisk = !isCached();
            advise(0, 0, POSIX_FADV_SEQUENTIAL);
        }
    }
    RegularFile(const RegularFile&) = delete;
    RegularFile& operator=(const RegularFile&) = delete;
    ~RegularFile() override
    {
        // The samples of a larger file stay: the rest is likely to follow.
        if (m_isFromDisk && (m_plan == ReadingPlan::wholeFile || m_state.size <= kSmallFileBytes)) {
            advise(0, 0, POSIX_FADV_DONTNEED);
        }
    }

    [[nodiscard]] const ContentState& stateAtOpening() const override { return m_state; }

    [[nodiscard]] std::expected<ContentState, FileError> currentState() const override
    {
        struct stat found{};
        if (fstat(m_descriptor.get(), &found) != 0) {
            return std::unexpected(error(errno));
        }
        if (found.st_nlink == 0) {
            return std::unexpected(error(ENOENT));
        }
        return contentStateOf(found);
    }

    [[nodiscard]] std::expected<std::size_t, FileError> read(std::int64_t offset, std::span<std::byte> buffer) override
    {
        std::size_t filled = 0;
        if (m_plan == ReadingPlan::samples) {
            filled = readSampleFromCache(offset, buffer);
        } else if (m_isFromDisk) {
            if (offset != m_nextOffset) {
                m_readAheadEnd = m_released = offset;
            }
            readAhead(offset, std::ssize(buffer));
        }
        int interruptions = 0;
        while (filled < buffer.size()) {
            const auto rest = buffer.subspan(filled);
            const auto count =
                pread(m_descriptor.get(), rest.data(), rest.size(), offset + static_cast<std::int64_t>(filled));
            if (count < 0 && (errno != EINTR || ++interruptions > kMaximumInterruptions)) {
                return std::unexpected(error(errno));
            }
            if (count == 0) {
                break;
            }
            filled += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
        }
        if (m_plan == ReadingPlan::wholeFile && m_isFromDisk) {
            m_nextOffset = offset + static_cast<std::int64_t>(filled);
            releaseBehind(m_nextOffset);
        }
        return filled;
    }

private:
    /// Whether somebody else's use has the file in the cache, told by a few places. None of them is one of the samples
    /// that this program itself may have read before.
    [[nodiscard]] bool isCached() const
    {
        std::byte probe{};
        for (std::int64_t index = 0; index < kCacheProbes; ++index) {
            // At 1/8, 3/8, 5/8 and 7/8, without an overflow for a file of the largest size.
            const auto place = m_state.size / (2 * kCacheProbes) * (2 * index + 1);
            if (readCached(m_descriptor.get(), place, {&probe, 1}) != 1) {
                return false;
            }
        }
        return true;
    }

    [[nodiscard]] std::size_t readSampleFromCache(std::int64_t offset, std::span<std::byte> buffer)
    {
        const auto count = readCached(m_descriptor.get(), offset, buffer);
        const auto available = std::max<std::int64_t>(m_state.size - offset, 0);
        m_isFromDisk = m_isFromDisk || count < std::min(std::ssize(buffer), available);
        return static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    }

    /// Lets the disk work on what comes next while this piece is being looked at.
    void readAhead(std::int64_t offset, std::int64_t length)
    {
        if (offset + length + kReadAheadBytes / 2 > m_readAheadEnd) {
            const auto start = std::max(offset, m_readAheadEnd);
            m_readAheadEnd = start + kReadAheadBytes;
            advise(start, kReadAheadBytes, POSIX_FADV_WILLNEED);
        }
    }

    void releaseBehind(std::int64_t end)
    {
        if (end - m_released >= kReleaseStrideBytes) {
            advise(m_released, end - m_released, POSIX_FADV_DONTNEED);
            m_released = end;
        }
    }

    /// A hint: a file system that does not take it reads just as well.
    void advise(std::int64_t offset, std::int64_t length, int advice) const
    {
        posix_fadvise(m_descriptor.get(), offset, length, advice);
    }

    [[nodiscard]] FileError error(int systemError) const
    {
        return FileError::fromSystemError(systemError, FileOperation::read, m_path);
    }

    FileDescriptor m_descriptor;
    ContentState m_state;
    std::string m_path;
    ReadingPlan m_plan;
    bool m_isFromDisk = false;
    std::int64_t m_nextOffset = 0;
    std::int64_t m_readAheadEnd = 0;
    std::int64_t m_released = 0;
};

/// Opens for reading what an O_PATH descriptor holds, and nothing else.
FileDescriptor openHeld(const FileDescriptor& held)
{
    const auto path = fmt::format("/proc/self/fd/{}", held.get());
    constexpr int flags = O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
    FileDescriptor file(open(path.c_str(), flags | O_NOATIME));
    // open(2), O_NOATIME: for the owner's own files only.
    return file.isOpen() || errno != EPERM ? std::move(file) : FileDescriptor(open(path.c_str(), flags));
}

} // namespace

std::expected<std::unique_ptr<ReadableFile>, FileError> openRegularFile(const FileURL& url, ReadingPlan plan)
{
    const auto failure = [&](int systemError) {
        return std::unexpected(FileError::fromSystemError(systemError, FileOperation::read, url.path()));
    };
    const FileDescriptor held(open(url.path().c_str(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
    struct stat found{};
    if (!held.isOpen() || fstat(held.get(), &found) != 0) {
        return failure(errno);
    }
    if (!S_ISREG(found.st_mode)) {
        return std::unexpected(
            FileError{.kind = FileErrorKind::notRegularFile, .operation = FileOperation::read, .path = url.path()});
    }
    auto file = openHeld(held);
    if (!file.isOpen()) {
        // The held file is there, so what is missing is /proc. There is no other way to open just this file and not
        // what may have taken its name since.
        return failure(errno == ENOENT ? ENOSYS : errno);
    }
    if (fstat(file.get(), &found) != 0) {
        return failure(errno);
    }
    return std::make_unique<RegularFile>(std::move(file), contentStateOf(found), url.path(), plan);
}

} // namespace Platform
