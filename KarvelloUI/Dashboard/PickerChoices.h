#pragma once

#include "KarvelloUI/Dashboard/DashboardWords.h"
#include "KarvelloUI/Dashboard/RawText.h"

#include <QString>
#include <QVariantList>
#include <QVariantMap>
#include <concepts>
#include <ranges>
#include <string>

namespace KarvelloUI {

/// An entry of a picker: { value, text }. The screen hands the value back.
[[nodiscard]] inline QVariantMap pickerChoice(const QString& value, const std::string& text)
{
    return {{QStringLiteral("value"), value}, {QStringLiteral("text"), shown(text)}};
}

/// An entry for each of `values`, by their raw values.
template <std::ranges::input_range Values>
[[nodiscard]] QVariantList pickerChoices(
    const Values& values, const std::invocable<std::ranges::range_value_t<Values>> auto& textOf)
{
    QVariantList choices;
    for (const auto value : values) {
        choices.append(pickerChoice(rawText(value), std::string(textOf(value))));
    }
    return choices;
}

} // namespace KarvelloUI
