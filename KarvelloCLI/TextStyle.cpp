#include "KarvelloCLI/TextStyle.h"

#include "KarvelloCLI/Words.h"

#include <fmt/format.h>

#include <algorithm>
#include <limits>

namespace KarvelloCLI {

TextStyle TextStyle::of(const CommonOptions& options, int descriptor, const Platform::FileURL& home,
    const Platform::Environment& environment)
{
    return {
        .columns = terminalColumns(descriptor, environment),
        .painter = Painter(usesColor(options.color, Terminal::of(descriptor, environment), environment)),
        .isVerbose = options.isVerbose,
        .paths = HomePathAbbreviation(home),
    };
}

std::string TextStyle::size(std::int64_t bytes) const
{
    return sizeWords(bytes);
}

std::string TextStyle::size(std::uint64_t bytes) const
{
    constexpr auto most = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    return size(static_cast<std::int64_t>(std::min(bytes, most)));
}

std::string TextStyle::path(const Platform::FileURL& url) const
{
    return TerminalText(paths.abbreviate(url.path())).string();
}

std::string TextStyle::paragraph(std::string_view words, std::size_t indent, std::optional<Ink> ink) const
{
    std::string text;
    const TerminalText sentence(words, TerminalText::Kind::sentence);
    for (const TerminalText& line : sentence.wrapped(columns > indent + 20 ? columns - indent : 20)) {
        text += fmt::format("{:{}}{}\n", "", indent, ink ? painter(*ink, line.string()) : line.string());
    }
    return text;
}

} // namespace KarvelloCLI
