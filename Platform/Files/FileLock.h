#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileDescriptor.h"

#include <chrono>
#include <cstdint>
#include <expected>

namespace Platform {

enum class FileLockFailure : std::uint8_t {
    /// Another holder kept it for the whole wait.
    busy,
    /// There can be no lock at this path: its folder is missing or may not be written, something other than a regular
    /// file stands there, or the file system knows no locks.
    unavailable,
};

/// Keeps processes apart that agree on a lock file (flock(2)); threads of one process as well. It ends with this object,
/// and with the process whatever becomes of it, so a crash never leaves a lock behind. A process that takes one lock after
/// the other lets those who wait have theirs in between.
class FileLock {
public:
    ~FileLock();
    FileLock(FileLock&&) = default;
    FileLock& operator=(FileLock&&) = delete;

    /// Makes the file (for its user alone) if there is none, but no folder. A link is not followed. The file stays when
    /// the lock ends: taking it away would let two others hold two files of one name.
    [[nodiscard]] static std::expected<FileLock, FileLockFailure> acquire(
        const FileURL& url, std::chrono::milliseconds maximumWait);

private:
    explicit FileLock(FileDescriptor file)
        : m_file(std::move(file))
    {
    }

    FileDescriptor m_file;
};

} // namespace Platform
