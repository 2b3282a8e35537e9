#include "CleanerCore/Scan/XDGBaseDirectories.h"

#include "CleanerCore/Safety/ComparisonForm.h"

#include <algorithm>

namespace CleanerCore {

using Platform::DirectoryHint;
using Platform::FileURL;

XDGBaseDirectories::XDGBaseDirectories(
    const FileURL& homeDirectory, const Platform::FileManager& fileManager, const Platform::Environment& environment)
    : m_homeAsGiven(homeDirectory)
    , m_home(FileURL::folder(resolvedPath(homeDirectory, fileManager)))
{
    const auto named = [&](std::string_view variable, std::string_view fallback) {
        return insideHome(variable, environment).value_or(m_home.appending(fallback, DirectoryHint::isFolder));
    };
    m_directories = {named("XDG_CACHE_HOME", ".cache"), named("XDG_CONFIG_HOME", ".config"),
        named("XDG_DATA_HOME", ".local/share"), m_home};
}

const FileURL& XDGBaseDirectories::directory(XDGBase base) const
{
    return m_directories[static_cast<std::size_t>(base)];
}

std::optional<FileURL> XDGBaseDirectories::folderNamedBy(
    std::string_view variable, const Platform::Environment& environment) const
{
    auto folder = insideHome(variable, environment);
    const auto isInFolder = [&](const FileURL& base) { return equalsOrIsInside(base.path(), folder->path()); };
    if (folder && std::any_of(m_directories.begin(), m_directories.end(), isInFolder)) {
        return std::nullopt;
    }
    return folder;
}

std::optional<FileURL> XDGBaseDirectories::insideHome(
    std::string_view variable, const Platform::Environment& environment) const
{
    const auto value = environment.value(variable);
    if (!value || !value->starts_with('/')) {
        return std::nullopt;
    }
    const auto folder = FileURL::folder(*value);
    for (const auto& home : {m_homeAsGiven, m_home}) {
        if (Platform::isPathInside(folder.path(), home.path())) {
            return m_home.appending(
                std::string_view(folder.path()).substr(home.path().size()), DirectoryHint::isFolder);
        }
    }
    return std::nullopt;
}

} // namespace CleanerCore
