#include "Tests/Support/TreeRemoval.h"

#include "Platform/Files/OpenFolder.h"

#include <cerrno>
#include <memory>
#include <string_view>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace TestSupport {

namespace {

using Platform::FileDescriptor;

/// A folder on the way down: its name in the one above, and the folders in it that are still to go.
struct Level {
    std::string name;
    std::vector<std::string> folders;
};

/// Removes what is no folder and names the rest.
std::vector<std::string> removeFiles(const FileDescriptor& folder)
{
    std::vector<std::string> folders;
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(fdopendir(dup(folder.get())), closedir);
    if (!listing) {
        return folders;
    }
    while (const auto* entry = readdir(listing.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != ".." && unlinkat(folder.get(), entry->d_name, 0) != 0) {
            folders.emplace_back(name);
        }
    }
    return folders;
}

std::expected<FileDescriptor, int> openAccessible(int base, const std::string& name)
{
    fchmodat(base, name.c_str(), S_IRWXU, 0);
    return Platform::openFolderIn(base, name.c_str());
}

} // namespace

int removeTree(int base, const std::string& name)
{
    if (unlinkat(base, name.c_str(), 0) == 0 || errno == ENOENT) {
        return 0;
    }
    auto current = openAccessible(base, name);
    if (!current) {
        return current.error();
    }
    std::vector<Level> levels;
    levels.push_back({.name = name, .folders = removeFiles(*current)});
    while (levels.size() > 1 || !levels.back().folders.empty()) {
        auto& folders = levels.back().folders;
        if (!folders.empty()) {
            auto next = std::move(folders.back());
            folders.pop_back();
            auto below = openAccessible(current->get(), next);
            if (!below) {
                return below.error();
            }
            current = std::move(below);
            levels.push_back({.name = std::move(next), .folders = removeFiles(*current)});
            continue;
        }
        auto above = Platform::openParentFolder(current->get());
        if (!above) {
            return above.error();
        }
        if (unlinkat(above->get(), levels.back().name.c_str(), AT_REMOVEDIR) != 0) {
            return errno;
        }
        current = std::move(above);
        levels.pop_back();
    }
    return unlinkat(base, name.c_str(), AT_REMOVEDIR) == 0 ? 0 : errno;
}

} // namespace TestSupport
