#pragma once

#include "CleanerCore/Scan/XDGLocationTable.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Environment.h"

#include <array>
#include <optional>
#include <string_view>

namespace CleanerCore {

/// The base directories of a home after the XDG Base Directory Specification 0.8. A variable counts only if it names an
/// absolute path strictly inside the home, for nothing outside of it is ever scanned; else the default does.
class XDGBaseDirectories {
public:
    XDGBaseDirectories(const Platform::FileURL& homeDirectory, const Platform::FileManager& fileManager,
        const Platform::Environment& environment);

    /// With its symbolic links resolved, so that the roots below it are reached through none.
    [[nodiscard]] const Platform::FileURL& homeDirectory() const { return m_home; }
    [[nodiscard]] const Platform::FileURL& directory(XDGBase base) const;

    /// The folder that a variable names: absolute, strictly inside the home, neither a base directory nor above one. A
    /// tool's folder is its own; whoever points a tool at a folder with more in it does not mean that to be its cache.
    [[nodiscard]] std::optional<Platform::FileURL> folderNamedBy(
        std::string_view variable, const Platform::Environment& environment) const;

private:
    [[nodiscard]] std::optional<Platform::FileURL> insideHome(
        std::string_view variable, const Platform::Environment& environment) const;

    /// As the caller gave it, and as the person's variables name it.
    Platform::FileURL m_homeAsGiven;
    Platform::FileURL m_home;
    std::array<Platform::FileURL, 4> m_directories;
};

} // namespace CleanerCore
