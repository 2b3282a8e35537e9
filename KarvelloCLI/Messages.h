#pragma once

#include <string_view>

namespace KarvelloCLI {

/// A line on standard error that begins with the program's name. Where that cannot be written, nobody listens.
void printMessage(std::string_view sentence);

} // namespace KarvelloCLI
