#include "Platform/Base/JSONError.h"

#include "Platform/Base/Text.h"

#include <fmt/format.h>
#include <utility>

namespace Platform {

JSONError JSONError::withinMember(std::string_view key) &&
{
    const std::string_view separator = path.empty() || path.starts_with('[') ? "" : ".";
    return {std::move(message), fmt::format("{}{}{}", Text::escapingInvalidUTF8(key), separator, path)};
}

JSONError JSONError::withinElement(std::size_t index) &&
{
    const std::string_view separator = path.empty() || path.starts_with('[') ? "" : ".";
    return {std::move(message), fmt::format("[{}]{}{}", index, separator, path)};
}

std::string JSONError::localizedDescription() const
{
    return path.empty() ? message : fmt::format("{}: {}", path, message);
}

} // namespace Platform
