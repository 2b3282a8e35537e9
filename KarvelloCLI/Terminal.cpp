#include "KarvelloCLI/Terminal.h"

#include "Platform/Base/Text.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>

namespace KarvelloCLI {

namespace {

std::optional<std::size_t> columnsOfWindow(int descriptor)
{
    winsize size{};
    if (ioctl(descriptor, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) {
        return std::nullopt;
    }
    return size.ws_col;
}

std::optional<std::size_t> columnsOfEnvironment(const Platform::Environment& environment)
{
    const std::optional<std::string> text = environment.value("COLUMNS");
    if (!text) {
        return std::nullopt;
    }
    std::size_t columns = 0;
    const char* const end = text->data() + text->size();
    const auto [stop, error] = std::from_chars(text->data(), end, columns);
    if (error != std::errc{} || stop != end || columns == 0) {
        return std::nullopt;
    }
    return columns;
}

} // namespace

Terminal Terminal::of(int descriptor, const Platform::Environment& environment)
{
    Terminal terminal;
    terminal.isTerminal = isatty(descriptor) == 1;
    terminal.understandsEscapes = terminal.isTerminal && environment.value("TERM").value_or("dumb") != "dumb";
    return terminal;
}

std::size_t terminalColumns(int descriptor, const Platform::Environment& environment)
{
    std::optional<std::size_t> columns = columnsOfWindow(descriptor);
    if (!columns) {
        columns = columnsOfEnvironment(environment);
    }
    return std::max(columns.value_or(Terminal::kWidthWithoutTerminal), Terminal::kNarrowest);
}

bool usesColor(When choice, const Terminal& terminal, const Platform::Environment& environment)
{
    switch (choice) {
    case When::always:
        return true;
    case When::never:
        return false;
    case When::automatic:
        break;
    }
    return terminal.understandsEscapes && !environment.value("NO_COLOR");
}

bool usesUTF8(const Platform::Environment& environment)
{
    for (const char* const name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        const std::string locale = Platform::Text::lowercased(environment.value(name).value_or(""));
        if (!locale.empty()) {
            return locale.find("utf-8") != std::string::npos || locale.find("utf8") != std::string::npos;
        }
    }
    return false;
}

} // namespace KarvelloCLI
