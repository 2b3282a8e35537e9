#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The command lines of desktop files (Desktop Entry Specification, "The Exec key"), the escapes of the file undone.
namespace Platform::DesktopCommandLine {

/// Takes one argument off the front: words, some of them in double quotes.
[[nodiscard]] std::string takeArgument(std::string_view& line);

/// The program and its arguments for a start without files: field codes stand for nothing then. Nothing for a line with
/// a code that does not exist, and for one without a program.
[[nodiscard]] std::optional<std::vector<std::string>> words(std::string_view line);

} // namespace Platform::DesktopCommandLine
