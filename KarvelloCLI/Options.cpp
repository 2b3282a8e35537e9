#include "KarvelloCLI/Options.h"

namespace KarvelloCLI {

std::vector<std::string> ScanOptions::paths() const
{
    std::vector<std::string> paths = folders;
    paths.insert(paths.end(), roots.begin(), roots.end());
    for (const auto& path : {home, common.output}) {
        if (path) {
            paths.push_back(*path);
        }
    }
    return paths;
}

} // namespace KarvelloCLI
