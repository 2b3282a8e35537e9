#include "Platform/Services/HomeDirectory.h"

#include "Platform/Services/Environment.h"

#include <array>
#include <pwd.h>
#include <unistd.h>

namespace Platform {

FileURL homeDirectoryForCurrentUser()
{
    if (const auto home = Environment::current().value("HOME"); home && home->starts_with('/')) {
        return FileURL::folder(*home);
    }
    passwd entry{};
    passwd* found = nullptr;
    std::array<char, 16384> strings{};
    if (getpwuid_r(getuid(), &entry, strings.data(), strings.size(), &found) == 0 && found != nullptr) {
        return FileURL::folder(entry.pw_dir);
    }
    return FileURL{};
}

} // namespace Platform
