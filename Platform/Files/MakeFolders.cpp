#include "Platform/Files/MakeFolders.h"

#include <cerrno>
#include <string>
#include <sys/stat.h>

namespace Platform {

int makeFolders(const FileURL& folder)
{
    constexpr mode_t kPrivateFolder = 0700; // as the base directory specification asks for
    struct stat found{};
    if (stat(folder.path().c_str(), &found) == 0) {
        return S_ISDIR(found.st_mode) ? 0 : ENOTDIR;
    }
    const std::string& path = folder.path();
    for (std::size_t slash = path.find('/', 1); true; slash = path.find('/', slash + 1)) {
        const auto prefix = path.substr(0, slash);
        if (mkdir(prefix.c_str(), kPrivateFolder) != 0 && errno != EEXIST) {
            // A parent that is there may answer with another error than EEXIST, such as EROFS.
            const int error = errno;
            if (stat(prefix.c_str(), &found) != 0 || !S_ISDIR(found.st_mode)) {
                return error;
            }
        }
        if (slash == std::string::npos) {
            break;
        }
    }
    return stat(folder.path().c_str(), &found) == 0 && S_ISDIR(found.st_mode) ? 0 : ENOTDIR;
}

} // namespace Platform
