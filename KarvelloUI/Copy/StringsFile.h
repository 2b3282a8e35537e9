#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace KarvelloUI {

using StringsEntries = std::map<std::string, std::string, std::less<>>;

/// Reads a `.strings` file in UTF-8, with or without a byte order mark: `"key" = "text";` for each entry, with \", \\, \n
/// and \t as escapes, and comments as in C. Of a key that stands twice the last text counts. Nothing for a file that is
/// not like this from end to end.
[[nodiscard]] std::optional<StringsEntries> readStringsFile(std::string_view contents);

} // namespace KarvelloUI
