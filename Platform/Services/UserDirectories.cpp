#include "Platform/Services/UserDirectories.h"

#include "Platform/Services/HomeDirectory.h"

namespace Platform {

FileURL dataDirectoryForCurrentUser(const Environment& environment)
{
    if (const auto folder = environment.value("XDG_DATA_HOME"); folder && folder->starts_with('/')) {
        return FileURL::folder(*folder);
    }
    const auto home = environment.value("HOME");
    const auto homeFolder = home && home->starts_with('/') ? FileURL::folder(*home) : homeDirectoryForCurrentUser();
    return homeFolder.appending(".local/share", DirectoryHint::isFolder);
}

} // namespace Platform
