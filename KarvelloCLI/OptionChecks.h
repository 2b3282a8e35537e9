#pragma once

#include "KarvelloCLI/TerminalText.h"
#include "Platform/Base/RawValue.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <string>

/// What a value of an option has to be. Each complaint ends a sentence that begins with the option's name.
namespace KarvelloCLI {

inline constexpr unsigned kMostJobs = 256;

template <Platform::RawRepresentable E>
[[nodiscard]] CLI::Validator oneOf()
{
    return CLI::Validator(
        [](std::string& value) -> std::string {
            if (Platform::fromRawValue<E>(value)) {
                return {};
            }
            return fmt::format(
                "“{}” is not one of {}", TerminalText(value).string(), fmt::join(Platform::RawValues<E>::names, ", "));
        },
        std::string{});
}

[[nodiscard]] CLI::Validator oneOfTheLanguages();
[[nodiscard]] CLI::Validator notEmpty(std::string complaint);
[[nodiscard]] CLI::Validator secondsFromZero();
/// A tenth of a second to a day.
[[nodiscard]] CLI::Validator watchInterval();
[[nodiscard]] CLI::Validator countOfJobs();
[[nodiscard]] CLI::Validator countFromOne();
[[nodiscard]] CLI::Validator entryId();

} // namespace KarvelloCLI
