#pragma once

#include <cstdint>

namespace KarvelloCLI {

/// What a command tells the shell. The numbers are a contract with scripts.
enum class ExitCode : std::uint8_t {
    done = 0,
    /// There is a result, but something could not be read or written.
    partial = 1,
    wrongUsage = 2,
    /// Nothing that was asked for is allowed, or exists.
    refused = 3,
    interrupted = 130,
};

} // namespace KarvelloCLI
