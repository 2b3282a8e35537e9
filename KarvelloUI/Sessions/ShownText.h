#pragma once

#include "Platform/Base/UnseenText.h"

#include <QString>
#include <string_view>

namespace KarvelloUI {

/// A name, a path, or a sentence with some in it as screens and assistants get it: one line, in which nothing is hidden,
/// reordered or lost. To look at only; what acts takes ids and paths.
[[nodiscard]] inline QString shownText(std::string_view text)
{
    return QString::fromStdString(Platform::Text::escapingUnseen(text));
}

/// A text of several lines. The names in it are escaped before they are put in, else they could end a line.
[[nodiscard]] inline QString shownLines(std::string_view text)
{
    const std::size_t end = text.find('\n');
    return end == std::string_view::npos
        ? shownText(text)
        : shownText(text.substr(0, end)) + QLatin1Char('\n') + shownLines(text.substr(end + 1));
}

} // namespace KarvelloUI
