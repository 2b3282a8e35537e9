#include "KarvelloCLI/OptionChecks.h"

#include "KarvelloCLI/Options.h"
#include "Platform/Base/ASCII.h"
#include "Platform/Base/UUID.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>
#include <utility>

namespace KarvelloCLI {

namespace {

/// The bytes that a unit stands for: none, or K, M, G or T with "B" or "iB" behind it or nothing.
std::optional<std::int64_t> unitBytes(std::string_view unit)
{
    if (unit.empty() || Platform::ASCII::equalsIgnoringCase(unit, "b")) {
        return 1;
    }
    constexpr std::string_view prefixes = "kmgt";
    const auto index = prefixes.find(Platform::ASCII::lowercased(unit.front()));
    const std::string_view rest = unit.substr(1);
    const bool isKnown = rest.empty() || Platform::ASCII::equalsIgnoringCase(rest, "b")
        || Platform::ASCII::equalsIgnoringCase(rest, "ib");
    return index != std::string_view::npos && isKnown ? std::optional(std::int64_t{1} << (10 * (index + 1)))
                                                      : std::nullopt;
}

std::optional<std::int64_t> byteCount(std::string_view text)
{
    std::int64_t number = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    std::string_view unit(stop, text.data() + text.size());
    unit.remove_prefix(std::min(unit.find_first_not_of(' '), unit.size()));
    const auto factor = unitBytes(unit);
    std::int64_t bytes = 0;
    if (error != std::errc{} || !factor || __builtin_mul_overflow(number, *factor, &bytes)) {
        return std::nullopt;
    }
    return bytes;
}

} // namespace

CLI::Validator notEmpty(std::string complaint)
{
    return CLI::Validator(
        [complaint = std::move(complaint)](std::string& value) { return value.empty() ? complaint : std::string{}; },
        std::string{});
}

CLI::Validator secondsFromZero(std::optional<double> most)
{
    return CLI::Validator(
        [most](std::string& value) -> std::string {
            double seconds = -1;
            const bool isNumber = CLI::detail::lexical_cast(value, seconds) && std::isfinite(seconds);
            if (isNumber && seconds >= 0 && (!most || seconds <= *most)) {
                return {};
            }
            return most ? say("“{}” is no number of seconds from {} to {}", TerminalText(value).string(), 0, *most)
                        : say("“{}” is no number of seconds", TerminalText(value).string());
        },
        std::string{});
}

CLI::Validator watchInterval()
{
    return CLI::Validator(
        [](std::string& value) -> std::string {
            double seconds = 0;
            if (CLI::detail::lexical_cast(value, seconds) && seconds >= 0.1 && seconds <= 86'400) {
                return {};
            }
            return say("“{}” is no number of seconds from {} to {}", TerminalText(value).string(), 0.1, 86400);
        },
        std::string{});
}

CLI::Validator countOfJobs()
{
    return CLI::Validator(
        [](std::string& value) -> std::string {
            unsigned jobs = 0;
            if (CLI::detail::lexical_cast(value, jobs) && jobs >= 1 && jobs <= kMostJobs) {
                return {};
            }
            return say("“{}” is no number from {} to {}", TerminalText(value).string(), 1, kMostJobs);
        },
        std::string{});
}

CLI::Validator countFrom(std::int64_t least)
{
    return CLI::Validator(
        [least](std::string& value) -> std::string {
            std::int64_t count = 0;
            if (CLI::detail::lexical_cast(value, count) && count >= least) {
                return {};
            }
            return say("“{}” is no number from {} on", TerminalText(value).string(), least);
        },
        std::string{});
}

CLI::Validator byteCountFrom(std::int64_t least)
{
    return CLI::Validator(
        [least](std::string& value) -> std::string {
            const auto bytes = byteCount(value);
            if (!bytes || *bytes < least) {
                return say("“{}” is no number of bytes from {} on, such as 100M", TerminalText(value).string(), least);
            }
            value = std::to_string(*bytes);
            return {};
        },
        std::string{});
}

CLI::Validator entryId()
{
    return CLI::Validator(
        [](std::string& value) -> std::string {
            if (Platform::UUID::fromString(value)) {
                return {};
            }
            return say("“{}” is no id of an entry", TerminalText(value).string());
        },
        std::string{});
}

} // namespace KarvelloCLI
