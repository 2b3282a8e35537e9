#pragma once

#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/TerminalText.h"
#include "Platform/Base/RawValue.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <cstdint>
#include <optional>
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
            return say("“{}” is not one of {}", TerminalText(value).string(),
                fmt::format("{}", fmt::join(Platform::RawValues<E>::names, ", ")));
        },
        std::string{});
}

[[nodiscard]] CLI::Validator notEmpty(std::string complaint);
[[nodiscard]] CLI::Validator secondsFromZero(std::optional<double> most = std::nullopt);
/// A tenth of a second to a day.
[[nodiscard]] CLI::Validator watchInterval();
[[nodiscard]] CLI::Validator countOfJobs();
[[nodiscard]] CLI::Validator countFrom(std::int64_t least);
/// Takes "104857600", "100M", "100 MB" and "100MiB" for the same, with K, M, G and T in either case, and puts the plain
/// number in the value's place: for `transform`.
[[nodiscard]] CLI::Validator byteCountFrom(std::int64_t least);
[[nodiscard]] CLI::Validator entryId();

} // namespace KarvelloCLI
