#pragma once

#include <QString>
#include <string_view>

namespace KarvelloUI {

/// The icon of the set that stands for a symbol of the menu bar; empty for a symbol that has none.
[[nodiscard]] inline QString popoverIcon(std::string_view symbol)
{
    if (symbol == "internaldrive") {
        return QStringLiteral("disk");
    }
    if (symbol.starts_with("cpu")) {
        return QStringLiteral("cpu");
    }
    if (symbol.starts_with("memorychip")) {
        return QStringLiteral("memory");
    }
    return symbol == "thermometer.medium" ? QStringLiteral("thermal") : QString();
}

} // namespace KarvelloUI
