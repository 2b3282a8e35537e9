#pragma once

#include "Platform/Base/FileURL.h"

#include <string>
#include <string_view>

namespace Platform {

/// Paths as people read them: the home folder is "~". Bytes stay as they are.
class HomePathAbbreviation {
public:
    explicit HomePathAbbreviation(const FileURL& home)
        : m_home(home.path())
    {
    }
    [[nodiscard]] std::string abbreviate(std::string_view path) const;

private:
    std::string m_home;
};

} // namespace Platform
