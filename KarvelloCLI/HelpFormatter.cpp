#include "KarvelloCLI/HelpFormatter.h"

#include "KarvelloCLI/TerminalText.h"

#include <fmt/format.h>

namespace KarvelloCLI {

std::string HelpFormatter::make_usage(const CLI::App* app, std::string name) const
{
    const std::string full = app->get_parent() != nullptr ? fmt::format("{} {}", kProgram, app->get_name()) : name;
    const bool hasCommands = !app->get_subcommands({}).empty();
    return fmt::format("Usage: {} {}\n", full, hasCommands ? "COMMAND [OPTIONS]" : "[OPTIONS]");
}

std::string HelpFormatter::make_option(const CLI::Option* option, bool /*isPositional*/) const
{
    std::string left = "  " + make_option_name(option, false);
    if (!option->get_type_name().empty()) {
        left += " " + option->get_type_name();
    }
    return entry(left, option->get_description());
}

std::string HelpFormatter::make_subcommand(const CLI::App* command) const
{
    const std::string description = command->get_description();
    return entry("  " + command->get_name(), description.substr(0, description.find('\n')));
}

std::string HelpFormatter::entry(const std::string& left, const std::string& description)
{
    std::string text = left;
    std::string separator = left.size() + 2 <= kDescriptionColumn ? std::string(kDescriptionColumn - left.size(), ' ')
                                                                  : fmt::format("\n{:{}}", "", kDescriptionColumn);
    for (const TerminalText& line : TerminalText(description).wrapped(kWidth - kDescriptionColumn)) {
        text += separator + line.string();
        separator = fmt::format("\n{:{}}", "", kDescriptionColumn);
    }
    return text + "\n";
}

} // namespace KarvelloCLI
