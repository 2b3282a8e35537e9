#pragma once

#include "KarvelloUI/Dashboard/DashboardWords.h"
#include "KarvelloUI/Dashboard/RawText.h"

#include <QString>
#include <QVariantList>
#include <QVariantMap>
#include <concepts>
#include <optional>
#include <ranges>
#include <string>

namespace KarvelloUI {

/// What a picker shows for each of `values`: { value, text }, the value being the raw one.
template <std::ranges::input_range Values>
[[nodiscard]] QVariantList pickerChoices(
    const Values& values, const std::invocable<std::ranges::range_value_t<Values>> auto& textOf)
{
    QVariantList choices;
    for (const auto value : values) {
        choices.append(QVariantMap{
            {QStringLiteral("value"), rawText(value)}, {QStringLiteral("text"), shown(std::string(textOf(value)))}});
    }
    return choices;
}

/// The choice that a picker hands back; nothing for what is none.
template <Platform::RawRepresentable Value>
[[nodiscard]] std::optional<Value> pickedChoice(const QString& value)
{
    return Platform::fromRawValue<Value>(value.toStdString());
}

} // namespace KarvelloUI
