#pragma once

#include "KarvelloCLI/OptionChecks.h"
#include "KarvelloCLI/Options.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <optional>
#include <string>
#include <vector>

/// Options that several commands have. Each target must outlive the parsing.
namespace KarvelloCLI {

/// The words of an enumeration's option, read into its value once the whole line is known to be good. The target may be
/// an optional one.
template <Platform::RawRepresentable E, typename Target>
CLI::Option* addChoice(CLI::App& app, const std::string& name, Target& target, const std::string& description)
{
    return app
        .add_option_function<std::string>(
            name, [&target](const std::string& value) { target = *Platform::fromRawValue<E>(value); }, description)
        ->check(oneOf<E>())
        ->type_name(fmt::format("{}", fmt::join(Platform::RawValues<E>::names, "|")));
}

/// One value for each mention: a name in brackets stays one name, and what follows is no value by accident.
CLI::Option* addRepeated(
    CLI::App& app, const std::string& name, std::vector<std::string>& target, const std::string& description);

CLI::Option* addFolders(
    CLI::App& app, const std::string& name, std::vector<std::string>& target, const std::string& description);

CLI::Option* addHome(CLI::App& app, std::optional<std::string>& target, const std::string& description);

void addCommonOptions(CLI::App& app, CommonOptions& options);

} // namespace KarvelloCLI
