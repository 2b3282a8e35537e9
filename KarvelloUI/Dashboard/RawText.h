#pragma once

#include "Platform/Base/RawValue.h"

#include <QString>
#include <optional>

namespace KarvelloUI {

/// The raw value, for a screen that hands it back.
template <Platform::RawRepresentable Value>
[[nodiscard]] QString rawText(Value value)
{
    return QString::fromUtf8(Platform::rawValue(value));
}
/// Empty for none.
template <Platform::RawRepresentable Value>
[[nodiscard]] QString rawText(std::optional<Value> value)
{
    return value ? rawText(*value) : QString();
}

/// What a screen hands back; nothing for a text that is no raw value.
template <Platform::RawRepresentable Value>
[[nodiscard]] std::optional<Value> fromRawText(const QString& text)
{
    return Platform::fromRawValue<Value>(text.toStdString());
}

} // namespace KarvelloUI
