#pragma once

#include "Platform/Files/DirectoryEnumerator.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <expected>
#include <optional>
#include <string_view>

namespace Platform {

/// Reads the entries of an open folder in the order of the file system, through a buffer of fixed size, so that a
/// folder of any size costs the same memory. "." and ".." are left out.
class FolderListing {
public:
    struct Entry {
        /// Followed by a NUL; lives until the next call of `next` or `start`.
        std::string_view name;
        ListedType type = ListedType::unknown;
    };

    /// Lists `folderDescriptor` from its present position. The descriptor must stay open.
    void start(int folderDescriptor);
    /// The next entry, or nothing at the end; the error is the system's number, and the listing has ended with it.
    [[nodiscard]] std::expected<std::optional<Entry>, int> next();

private:
    [[nodiscard]] std::expected<bool, int> fill();

    static constexpr std::size_t kBufferBytes = std::size_t{64} * 1024;

    int m_descriptor = -1;
    std::size_t m_position = 0;
    std::size_t m_end = 0;
    alignas(std::uint64_t) std::array<char, kBufferBytes> m_buffer;
};

} // namespace Platform
