#pragma once

#include "Platform/Base/Text.h"

#include <QString>
#include <string_view>

namespace KarvelloUI {

/// A name or a path as a screen shows it, bytes that are not UTF-8 escaped.
[[nodiscard]] inline QString shownText(std::string_view text)
{
    return QString::fromStdString(Platform::Text::escapingInvalidUTF8(text));
}

} // namespace KarvelloUI
