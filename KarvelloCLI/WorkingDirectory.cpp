#include "KarvelloCLI/WorkingDirectory.h"

#include "KarvelloCLI/Say.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace KarvelloCLI {

using Platform::FileURL;

std::expected<FileURL, std::string> workingDirectoryFor(std::span<const std::string> paths)
{
    std::error_code error;
    const std::filesystem::path path = std::filesystem::current_path(error);
    if (!error) {
        return FileURL::folder(path.native());
    }
    if (std::ranges::all_of(paths, [](const std::string& each) { return each.starts_with('/'); })) {
        return FileURL();
    }
    return std::unexpected(say("The working directory does not exist any more; give absolute paths."));
}

FileURL absoluteFolder(std::string_view words, const FileURL& workingDirectory)
{
    return words.starts_with('/') ? FileURL::folder(words)
                                  : workingDirectory.appending(words, Platform::DirectoryHint::isFolder);
}

std::vector<FileURL> absoluteFolders(std::span<const std::string> words, const FileURL& workingDirectory)
{
    std::vector<FileURL> folders;
    for (const std::string& name : words) {
        FileURL folder = absoluteFolder(name, workingDirectory);
        if (std::ranges::find(folders, folder) == folders.end()) {
            folders.push_back(std::move(folder));
        }
    }
    return folders;
}

} // namespace KarvelloCLI
