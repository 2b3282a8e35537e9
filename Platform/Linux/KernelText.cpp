#include "Platform/Linux/KernelText.h"

#include "Platform/Files/WholeFile.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>

namespace Platform::KernelText {

namespace {

constexpr std::size_t kMaximumBytes = std::size_t{8} * 1024 * 1024;
constexpr std::string_view kBlanks = " \t";

} // namespace

std::optional<std::string> read(const std::string& path)
{
    return readIn(AT_FDCWD, path.c_str());
}

std::optional<std::string> readIn(int folderDescriptor, const char* name)
{
    auto bytes = readWholeFile(folderDescriptor, name, kMaximumBytes);
    return bytes ? std::optional(*std::move(bytes)) : std::nullopt;
}

std::optional<std::string> readThroughLinks(const std::string& path)
{
    std::error_code error;
    const auto real = std::filesystem::canonical(path, error);
    return error ? std::nullopt : read(real.string());
}

std::vector<std::string> namesIn(const std::string& path)
{
    std::vector<std::string> names;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(path, error), end; !error && entry != end; entry.increment(error)) {
        names.push_back(entry->path().filename().string());
    }
    return names;
}

std::optional<std::string_view> takeLine(std::string_view& text)
{
    if (text.empty()) {
        return std::nullopt;
    }
    const auto end = std::min(text.find('\n'), text.size());
    const auto line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return line;
}

std::optional<std::string_view> takeWord(std::string_view& text)
{
    const auto begin = text.find_first_not_of(kBlanks);
    if (begin == std::string_view::npos) {
        text = {};
        return std::nullopt;
    }
    text.remove_prefix(begin);
    const auto end = std::min(text.find_first_of(kBlanks), text.size());
    const auto word = text.substr(0, end);
    text.remove_prefix(end);
    return word;
}

std::string_view stripped(std::string_view text)
{
    constexpr std::string_view edges = " \t\r\n";
    const auto begin = std::min(text.find_first_not_of(edges), text.size());
    text.remove_prefix(begin);
    return text.substr(0, text.find_last_not_of(edges) + 1);
}

std::optional<std::uint64_t> numberAfter(std::string_view key, std::string_view text)
{
    while (auto line = takeLine(text)) {
        if (takeWord(*line) == key) {
            const auto word = takeWord(*line);
            return word ? number<std::uint64_t>(*word) : std::nullopt;
        }
    }
    return std::nullopt;
}

} // namespace Platform::KernelText
