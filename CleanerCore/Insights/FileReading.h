#pragma once

#include "Platform/Files/FileManager.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <expected>
#include <memory>
#include <span>
#include <stop_token>

namespace CleanerCore {

/// What all readers of one search share.
struct FileReading {
    const Platform::FileManager& fileManager;
    std::stop_token stop;
    std::atomic<std::int64_t> bytesRead = 0;

    /// Reads all of `buffer`; a file that ends earlier is one whose contents are changing.
    [[nodiscard]] std::expected<void, Platform::FileError> fill(
        Platform::ReadableFile& file, const Platform::FileURL& url, std::int64_t offset, std::span<std::byte> buffer);
};

/// Why the file at `url` is not what it was, if it is not.
[[nodiscard]] std::expected<void, Platform::FileError> requireSameState(
    const Platform::ContentState& expected, const Platform::ContentState& found, const Platform::FileURL& url);

/// The same for a file that is open.
[[nodiscard]] std::expected<void, Platform::FileError> requireStillInState(
    const Platform::ContentState& expected, const Platform::ReadableFile& file, const Platform::FileURL& url);

[[nodiscard]] Platform::FileError readingFailure(Platform::FileErrorKind kind, const Platform::FileURL& url);

} // namespace CleanerCore
