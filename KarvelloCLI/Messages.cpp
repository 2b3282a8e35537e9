#include "KarvelloCLI/Messages.h"

#include "KarvelloCLI/OutputFile.h"

#include <fmt/format.h>
#include <unistd.h>

#include <tuple>

namespace KarvelloCLI {

void printMessage(std::string_view sentence)
{
    std::ignore = writeWholly(STDERR_FILENO, fmt::format("karvello-cli: {}\n", sentence));
}

} // namespace KarvelloCLI
