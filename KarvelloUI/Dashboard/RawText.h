#pragma once

#include "Platform/Base/RawValue.h"

#include <QString>
#include <string_view>

namespace KarvelloUI {

/// The raw value, for a screen that hands it back.
template <Platform::RawRepresentable Value>
[[nodiscard]] QString rawText(Value value)
{
    const std::string_view raw = Platform::rawValue(value);
    return QString::fromUtf8(raw.data(), static_cast<qsizetype>(raw.size()));
}

} // namespace KarvelloUI
