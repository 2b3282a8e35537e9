#pragma once

#include "KarvelloCLI/ExitCode.h"

#include <span>
#include <string>

namespace KarvelloCLI {

/// The whole program, from the arguments behind its name to what the shell is told.
[[nodiscard]] ExitCode runProgram(std::span<const std::string> arguments);

} // namespace KarvelloCLI
