#include "CleanerCore/Insights/FileReading.h"

namespace CleanerCore {

using Platform::ContentState;
using Platform::FileError;
using Platform::FileErrorKind;
using Platform::FileURL;
using Platform::ReadableFile;

std::expected<void, FileError> FileReading::fill(
    ReadableFile& file, const FileURL& url, std::int64_t offset, std::span<std::byte> buffer)
{
    const auto count = file.read(offset, buffer);
    if (!count) {
        return std::unexpected(count.error());
    }
    bytesRead += static_cast<std::int64_t>(*count);
    if (*count != buffer.size()) {
        return std::unexpected(readingFailure(FileErrorKind::contentsChanged, url));
    }
    return {};
}

std::expected<void, FileError> requireSameState(
    const ContentState& expected, const ContentState& found, const FileURL& url)
{
    if (expected.fileNumber != found.fileNumber || expected.deviceNumber != found.deviceNumber) {
        return std::unexpected(readingFailure(FileErrorKind::itemChanged, url));
    }
    if (expected != found) {
        return std::unexpected(readingFailure(FileErrorKind::contentsChanged, url));
    }
    return {};
}

std::expected<void, FileError> requireStillInState(
    const ContentState& expected, const ReadableFile& file, const FileURL& url)
{
    const auto found = file.currentState();
    return found ? requireSameState(expected, *found, url) : std::unexpected(found.error());
}

FileError readingFailure(FileErrorKind kind, const FileURL& url)
{
    return {.kind = kind, .operation = Platform::FileOperation::read, .path = url.path()};
}

} // namespace CleanerCore
