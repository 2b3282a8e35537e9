#pragma once

#include "Platform/Base/RawValue.h"
#include "Platform/Services/Environment.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace KarvelloCLI {

/// Back to the start of the line, and nothing stands there any more.
inline constexpr std::string_view kEraseLine = "\r\x1b[K";

/// A choice that a user may leave to the program.
enum class When : std::uint8_t { automatic, always, never };

/// What is known of the thing behind a file descriptor.
struct Terminal {
    static constexpr std::size_t kNarrowest = 40;
    static constexpr std::size_t kWidthWithoutTerminal = 100;

    bool isTerminal = false;
    /// A terminal that obeys escape sequences, so not one that calls itself "dumb".
    bool understandsEscapes = false;

    static Terminal of(int descriptor, const Platform::Environment& environment);
};

/// The columns of the terminal behind `descriptor` as they are now, else those that `$COLUMNS` tells, else
/// `kWidthWithoutTerminal`; never less than `kNarrowest`.
[[nodiscard]] std::size_t terminalColumns(int descriptor, const Platform::Environment& environment);

/// Whether output is coloured: left to the program, only on a terminal and only where `$NO_COLOR` is not set.
[[nodiscard]] bool usesColor(When choice, const Terminal& terminal, const Platform::Environment& environment);

/// Whether the locale that `$LC_ALL`, `$LC_CTYPE` or `$LANG` names, the first of them that is set, is of UTF-8. Names
/// are shown as they are in any case; it is for ornaments, which have a plain form.
[[nodiscard]] bool usesUTF8(const Platform::Environment& environment);

} // namespace KarvelloCLI

template <>
struct Platform::RawValues<KarvelloCLI::When> {
    static constexpr std::array<std::string_view, 3> names{"auto", "always", "never"};
};
