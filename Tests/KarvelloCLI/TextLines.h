#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace KarvelloCLITests {

inline std::vector<std::string> linesOf(std::string_view text)
{
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

/// Without colours, and with the line ends of a file.
inline std::string plain(std::string_view text)
{
    std::string result;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] == '\x1b') {
            index = text.find_first_of("mK", index);
        } else if (text[index] != '\r') {
            result += text[index];
        }
    }
    return result;
}

} // namespace KarvelloCLITests
