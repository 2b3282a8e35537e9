#pragma once

#include "Platform/Base/Text.h"

#include <optional>
#include <string>
#include <string_view>

namespace CleanerCore {

/// The text without white space around it; nothing for a blank one.
[[nodiscard]] inline std::optional<std::string> trimmedUnlessBlank(std::string_view text)
{
    const auto trimmed = Platform::Text::trimmed(text);
    return trimmed.empty() ? std::nullopt : std::optional<std::string>(trimmed);
}

[[nodiscard]] inline std::optional<std::string> trimmedUnlessBlank(const std::optional<std::string>& text)
{
    return text ? trimmedUnlessBlank(std::string_view(*text)) : std::nullopt;
}

} // namespace CleanerCore
