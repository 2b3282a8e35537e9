#include "Platform/Files/PathResolution.h"

#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

namespace Platform {

namespace {

struct FreeMemory {
    void operator()(char* text) const { std::free(text); }
};

std::unique_ptr<char, FreeMemory> realPath(const std::string& path)
{
    return std::unique_ptr<char, FreeMemory>(::realpath(path.c_str(), nullptr));
}

} // namespace

FileURL resolvePath(const FileURL& url)
{
    const auto hint = url.hasDirectoryPath() ? DirectoryHint::isFolder : DirectoryHint::isFile;
    const std::string_view path = url.path();
    for (std::size_t length = path.size(); length > 1; length = path.rfind('/', length - 1)) {
        if (const auto resolved = realPath(std::string(path.substr(0, length)))) {
            return FileURL(std::string(resolved.get()).append(path.substr(length)), hint);
        }
    }
    return url;
}

} // namespace Platform
