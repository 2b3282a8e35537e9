#include "Platform/Base/HomePathAbbreviation.h"

#include <fmt/format.h>

namespace Platform {

std::string HomePathAbbreviation::abbreviate(std::string_view path) const
{
    if (path == m_home) {
        return "~";
    }
    if (isPathInside(path, m_home)) {
        return fmt::format("~{}", path.substr(m_home.size()));
    }
    return std::string(path);
}

} // namespace Platform
