#pragma once

#include <charconv>
#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

/// The small texts in which the kernel tells of itself below /proc and /sys.
namespace Platform::KernelText {

/// The whole text at `path`, or nothing if it cannot be read: processes end and sensors fail while one looks at them.
[[nodiscard]] std::optional<std::string> read(const std::string& path);

/// The same in an open folder.
[[nodiscard]] std::optional<std::string> readIn(int folderDescriptor, const char* name);
/// The same for a file that may lie behind symbolic links: files that people install, not those of the kernel.
[[nodiscard]] std::optional<std::string> readThroughLinks(const std::string& path);

/// The names of what lies in the folder at `path`, in no order; none if it cannot be listed.
[[nodiscard]] std::vector<std::string> namesIn(const std::string& path);

/// Takes the next line off `text`, without its end; nothing when `text` is empty.
[[nodiscard]] std::optional<std::string_view> takeLine(std::string_view& text);
/// Takes the next word off `text`, words being parted by blanks and tabs; nothing when there is no more.
[[nodiscard]] std::optional<std::string_view> takeWord(std::string_view& text);
/// Without the blanks and the line ends at both ends.
[[nodiscard]] std::string_view stripped(std::string_view text);

/// The number that `text` is as a whole; nothing for anything else and for what does not fit.
template <typename Number>
    requires std::integral<Number> || std::floating_point<Number>
[[nodiscard]] std::optional<Number> number(std::string_view text)
{
    Number value{};
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    return error == std::errc{} && stop == end ? std::optional(value) : std::nullopt;
}

template <typename Number>
[[nodiscard]] std::optional<Number> readNumber(const std::string& path)
{
    const auto text = read(path);
    return text ? number<Number>(stripped(*text)) : std::nullopt;
}

/// The number behind `key` in lines such as "MemTotal:       24684084 kB".
[[nodiscard]] std::optional<std::uint64_t> numberAfter(std::string_view key, std::string_view text);

} // namespace Platform::KernelText
