#pragma once

#include "KarvelloCLI/InsightsOptions.h"
#include "KarvelloCLI/Options.h"
#include "KarvelloCLI/SystemOptions.h"

#include <expected>
#include <span>
#include <string>
#include <variant>

namespace KarvelloCLI {

/// The words of a help or version request: they go to standard output, and nothing else happens.
struct Information {
    std::string text;
};

/// A command line that cannot be obeyed: a sentence on what is wrong, and where to read on.
struct UsageError {
    std::string message;
    std::string hint;
};

using Command = std::variant<Information, ScanOptions, CleanOptions, RestoreOptions, HistoryOptions, InsightsOptions,
    StatusOptions, AppsOptions>;

/// Reads the arguments that follow the program's name. Looks at nothing but the words: no disk, no environment.
[[nodiscard]] std::expected<Command, UsageError> parseCommandLine(std::span<const std::string> arguments);

} // namespace KarvelloCLI
