#include "KarvelloCLI/OptionChecks.h"

#include "KarvelloCLI/Options.h"
#include "Platform/Base/UUID.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace KarvelloCLI {

CLI::Validator oneOfTheLanguages()
{
    return CLI::Validator(
        [](std::string& value) -> std::string {
            if (std::ranges::find(kLanguageCodes, value) != kLanguageCodes.end()) {
                return {};
            }
            return fmt::format("“{}” is not one of {}", TerminalText(value).string(), fmt::join(kLanguageCodes, ", "));
        },
        std::string{});
}

CLI::Validator notEmpty(std::string complaint)
{
    return CLI::Validator(
        [complaint = std::move(complaint)](std::string& value) { return value.empty() ? complaint : std::string{}; },
        std::string{});
}

CLI::Validator secondsFromZero()
{
    return CLI::Validator(
        [](std::string& value) -> std::string {
            double seconds = -1;
            if (CLI::detail::lexical_cast(value, seconds) && std::isfinite(seconds) && seconds >= 0) {
                return {};
            }
            return fmt::format("“{}” is no number of seconds", TerminalText(value).string());
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
            return fmt::format("“{}” is no number of seconds from 0.1 to 86400", TerminalText(value).string());
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
            return fmt::format("“{}” is no number from 1 to {}", TerminalText(value).string(), kMostJobs);
        },
        std::string{});
}

CLI::Validator countFromOne()
{
    return CLI::Validator(
        [](std::string& value) -> std::string {
            std::int64_t count = 0;
            if (CLI::detail::lexical_cast(value, count) && count >= 1) {
                return {};
            }
            return fmt::format("“{}” is no number from 1 on", TerminalText(value).string());
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
            return fmt::format("“{}” is no id of an entry", TerminalText(value).string());
        },
        std::string{});
}

} // namespace KarvelloCLI
