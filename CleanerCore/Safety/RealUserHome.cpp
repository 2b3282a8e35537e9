#include "CleanerCore/Safety/RealUserHome.h"

#include "Platform/Services/HomeDirectory.h"

namespace CleanerCore {

Platform::FileURL cleanerCoreRealUserHomeDirectory()
{
    const auto home = Platform::homeDirectoryForCurrentUser();
    return cleanerCoreExtractRealUserHome(home.path()).value_or(home);
}

std::optional<Platform::FileURL> cleanerCoreExtractRealUserHome(std::string_view sandboxPath)
{
    const Platform::FileURL url(sandboxPath);
    const auto components = url.pathComponents();
    if (components.size() < 3 || components[1] != "Users") {
        return std::nullopt;
    }
    return Platform::FileURL()
        .child("Users", Platform::DirectoryHint::isFolder)
        .child(components[2], Platform::DirectoryHint::isFolder);
}

} // namespace CleanerCore
