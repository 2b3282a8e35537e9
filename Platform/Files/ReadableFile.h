#pragma once

#include "Platform/Base/Date.h"
#include "Platform/Files/FileError.h"

#include <cstddef>
#include <cstdint>
#include <expected>
#include <span>

namespace Platform {

/// How a file is going to be read: decides what is read ahead, and what stays in the system's cache afterwards.
enum class ReadingPlan : std::uint8_t {
    /// A few pieces here and there; a small file may be read whole so.
    samples,
    /// From the start to the end.
    wholeFile,
};

/// What tells that a file is still the same one with the same contents. A write that leaves size and times alone, as
/// one through mapped memory may for a while, does not show.
struct ContentState {
    struct Time {
        std::int64_t seconds = 0;
        std::int64_t nanoseconds = 0;

        friend bool operator==(const Time&, const Time&) = default;
    };

    std::uint64_t fileNumber = 0;
    std::uint64_t deviceNumber = 0;
    std::int64_t size = 0;
    Time modified;
    /// Of the contents, the name or the permissions.
    Time changed;

    [[nodiscard]] Date modificationDate() const
    {
        return Date::fromUnixTime(modified.seconds, static_cast<std::uint32_t>(modified.nanoseconds));
    }

    friend bool operator==(const ContentState&, const ContentState&) = default;
};

/// A regular file that is open for reading. Belongs to one thread.
class ReadableFile {
public:
    virtual ~ReadableFile() = default;

    /// The state that it had when it was opened.
    [[nodiscard]] virtual const ContentState& stateAtOpening() const = 0;
    /// The state now; an error of kind `noSuchFile` if the file has no name any more.
    [[nodiscard]] virtual std::expected<ContentState, FileError> currentState() const = 0;

    /// Reads from `offset` until `buffer` is full or the file ends, and gives the number of bytes.
    [[nodiscard]] virtual std::expected<std::size_t, FileError> read(
        std::int64_t offset, std::span<std::byte> buffer) = 0;

protected:
    ReadableFile() = default;
    ReadableFile(const ReadableFile&) = default;
    ReadableFile& operator=(const ReadableFile&) = default;
};

} // namespace Platform
