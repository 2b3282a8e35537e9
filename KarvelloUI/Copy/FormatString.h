#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace KarvelloUI {

using FormatArgument = std::variant<std::string, std::int64_t, double>;

/// Puts arguments into a format string: `%@` anything, `%d` (also `%i`, `%u`, with `l` or `ll`) a whole number, `%f` and
/// `%.2f` a number, `%2$@` the second argument, `%%` a percent sign. Numbers are written as the locale does, grouped, `%f`
/// with 6 digits behind the mark unless told otherwise. An argument that is not what its conversion wants is written as
/// what it is. A conversion without an argument, and anything else behind a "%", stays as it stands.
[[nodiscard]] std::string formatted(
    std::string_view format, std::span<const FormatArgument> arguments, std::string_view localeIdentifier);

} // namespace KarvelloUI
