#include "Platform/Linux/DesktopCommandLine.h"

#include <algorithm>

namespace Platform::DesktopCommandLine {

namespace {

constexpr std::string_view kBlanks = " \t";
/// The last six have no meaning any more, and are to be taken out.
constexpr std::string_view kFieldCodes = "fFuUickdDnNvm";

std::optional<std::string> withoutFieldCodes(std::string_view argument)
{
    std::string text;
    for (std::size_t index = 0; index < argument.size(); ++index) {
        if (argument[index] != '%') {
            text += argument[index];
            continue;
        }
        ++index;
        if (index == argument.size() || (argument[index] != '%' && !kFieldCodes.contains(argument[index]))) {
            return std::nullopt;
        }
        text += argument[index] == '%' ? "%" : "";
    }
    return text;
}

} // namespace

std::string takeArgument(std::string_view& line)
{
    line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
    std::string argument;
    bool isQuoted = false;
    for (; !line.empty(); line.remove_prefix(1)) {
        if (line.front() == '"') {
            isQuoted = !isQuoted;
        } else if (isQuoted && line.front() == '\\' && line.size() > 1) {
            line.remove_prefix(1);
            argument += line.front();
        } else if (!isQuoted && kBlanks.contains(line.front())) {
            break;
        } else {
            argument += line.front();
        }
    }
    return argument;
}

std::optional<std::vector<std::string>> words(std::string_view line)
{
    std::vector<std::string> words;
    while (line.find_first_not_of(kBlanks) != std::string_view::npos) {
        const auto argument = takeArgument(line);
        auto word = withoutFieldCodes(argument);
        if (!word) {
            return std::nullopt;
        }
        // One that was nothing but codes is no argument; one that was empty is.
        if (!word->empty() || argument.empty()) {
            words.push_back(std::move(*word));
        }
    }
    return words.empty() || words.front().empty() ? std::nullopt : std::optional(std::move(words));
}

} // namespace Platform::DesktopCommandLine
