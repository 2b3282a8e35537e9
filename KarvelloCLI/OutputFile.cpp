#include "KarvelloCLI/OutputFile.h"

#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/TerminalText.h"
#include "Platform/Files/StreamFile.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <optional>

namespace KarvelloCLI {

namespace {

constexpr std::string_view kDescriptorFolder = "/dev/fd/";

std::optional<int> descriptorNamed(std::string_view path)
{
    if (path == "/dev/stdout") {
        return STDOUT_FILENO;
    }
    if (path == "/dev/stderr") {
        return STDERR_FILENO;
    }
    if (!path.starts_with(kDescriptorFolder)) {
        return std::nullopt;
    }
    const std::string_view digits = path.substr(kDescriptorFolder.size());
    int number = -1;
    const auto [stop, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc{} || stop != digits.data() + digits.size() || number < 0) {
        return std::nullopt;
    }
    return number;
}

std::expected<void, Platform::FileError> writeTo(int descriptor, std::string_view bytes, const std::string& name)
{
    if (const int error = writeWholly(descriptor, bytes); error != 0) {
        return std::unexpected(Platform::FileError::fromSystemError(error, Platform::FileOperation::write, name));
    }
    return {};
}

} // namespace

int writeWholly(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const auto written = ::write(descriptor, bytes.data(), bytes.size());
        if (written >= 0) {
            bytes.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno == EAGAIN) {
            // Someone who shares the descriptor made it non-blocking.
            pollfd waiting{.fd = descriptor, .events = POLLOUT, .revents = 0};
            if (poll(&waiting, 1, -1) < 0 && errno != EINTR) {
                return errno;
            }
        } else if (errno != EINTR) {
            return errno;
        }
    }
    return 0;
}

OutputFile OutputFile::standardOutput()
{
    return {Descriptor{STDOUT_FILENO}, say("standard output")};
}

std::expected<OutputFile, std::string> OutputFile::named(
    std::string_view path, const Platform::FileManager& fileManager)
{
    const std::string shown = TerminalText(path).string();
    if (const auto number = descriptorNamed(path)) {
        return OutputFile{Descriptor{*number}, shown};
    }
    const Platform::FileURL url = fileManager.resolvingSymbolicLinks(Platform::FileURL(path));
    const auto attributes = fileManager.attributes(url);
    const auto isOfType = [&attributes](Platform::FileType type) { return attributes && attributes->type == type; };
    if (isOfType(Platform::FileType::directory) || path.ends_with('/')) {
        return std::unexpected(say("“{}” is a folder; a file is needed", shown));
    }
    if (isOfType(Platform::FileType::other)) {
        return OutputFile{Stream{url}, shown};
    }
    if (!fileManager.directoryExists(url.deletingLastPathComponent())) {
        return std::unexpected(say("“{}” lies in no folder that exists", shown));
    }
    return OutputFile{AtomicFile{url}, shown};
}

int OutputFile::descriptor() const
{
    const auto* const target = std::get_if<Descriptor>(&m_target);
    return target != nullptr ? target->number : -1;
}

std::expected<void, Platform::FileError> OutputFile::write(
    std::string_view bytes, const Platform::FileManager& fileManager) const
{
    if (const auto* const file = std::get_if<AtomicFile>(&m_target)) {
        return fileManager.writeAtomically(bytes, file->url);
    }
    if (const auto* const stream = std::get_if<Stream>(&m_target)) {
        const auto opened = Platform::openStreamForWriting(stream->url);
        return opened ? writeTo(opened->get(), bytes, m_name) : std::unexpected(opened.error());
    }
    return writeTo(descriptor(), bytes, m_name);
}

} // namespace KarvelloCLI
