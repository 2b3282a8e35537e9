#pragma once

#include "Platform/Base/Text.h"
#include "Platform/Base/UnseenText.h"

#include <QString>
#include <string_view>

namespace KarvelloUI {

/// A text with names or paths in it as a screen shows it, bytes that are not UTF-8 escaped.
[[nodiscard]] inline QString shownText(std::string_view text)
{
    return QString::fromStdString(Platform::Text::escapingInvalidUTF8(text));
}

/// A name or a path by itself: one line, in which nothing is hidden or reordered.
[[nodiscard]] inline QString shownName(std::string_view name)
{
    return QString::fromStdString(Platform::Text::escapingUnseen(name));
}

} // namespace KarvelloUI
