#include "KarvelloCLI/FolderNames.h"

#include "KarvelloCLI/Say.h"

#include <algorithm>

namespace KarvelloCLI {

namespace {

constexpr std::size_t kNamedFolders = 4;

} // namespace

std::vector<std::string> folderNames(
    std::span<const Platform::FileURL> folders, const HomePathAbbreviation& paths, bool isRedacted)
{
    if (isRedacted && !folders.empty()) {
        return {counted(folders.size(), "{} given folder", "{} given folders")};
    }
    std::vector<std::string> names;
    const std::size_t named = std::min(folders.size(), kNamedFolders);
    for (const Platform::FileURL& folder : folders.first(named)) {
        names.push_back(paths.abbreviate(folder.path()));
    }
    if (named < folders.size()) {
        names.push_back(counted(folders.size() - named, "{} more folder", "{} more folders"));
    }
    return names;
}

} // namespace KarvelloCLI
