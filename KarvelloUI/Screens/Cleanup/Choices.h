#pragma once

#include "Platform/Base/RawValue.h"

#include <QString>
#include <QVariantMap>
#include <optional>
#include <string_view>

namespace KarvelloUI {

/// The raw value of an enumeration, as QML hands it about.
template <typename Enumeration>
[[nodiscard]] QString rawText(Enumeration value)
{
    const std::string_view raw = Platform::rawValue(value);
    return QString::fromUtf8(raw.data(), static_cast<qsizetype>(raw.size()));
}
/// Empty for none.
template <typename Enumeration>
[[nodiscard]] QString rawText(std::optional<Enumeration> value)
{
    return value ? rawText(*value) : QString();
}

/// Nothing for what is no raw value.
template <typename Enumeration>
[[nodiscard]] std::optional<Enumeration> valueOf(const QString& rawValue)
{
    return Platform::fromRawValue<Enumeration>(rawValue.toStdString());
}

/// One entry of a picker.
[[nodiscard]] inline QVariantMap choice(const QString& value, const QString& text)
{
    return {{QStringLiteral("value"), value}, {QStringLiteral("text"), text}};
}

} // namespace KarvelloUI
