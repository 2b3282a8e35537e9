#include "Platform/Services/UserDirectories.h"

#include "Platform/Services/HomeDirectory.h"

#include <algorithm>
#include <string>
#include <utility>

namespace Platform {

namespace {

struct Row {
    std::string_view variable;
    std::string_view englishName;
};

constexpr std::array<Row, kUserDirectories.size()> kRows{{
    {"XDG_DOWNLOAD_DIR", "Downloads"},
    {"XDG_DESKTOP_DIR", "Desktop"},
    {"XDG_DOCUMENTS_DIR", "Documents"},
    {"XDG_VIDEOS_DIR", "Videos"},
    {"XDG_PICTURES_DIR", "Pictures"},
    {"XDG_MUSIC_DIR", "Music"},
    {"XDG_TEMPLATES_DIR", "Templates"},
    {"XDG_PUBLICSHARE_DIR", "Public"},
}};

std::string_view withoutLeadingBlanks(std::string_view text)
{
    return text.substr(std::min(text.find_first_not_of(" \t"), text.size()));
}

/// Takes `prefix` off the front, if it is there.
bool take(std::string_view& text, std::string_view prefix)
{
    if (!text.starts_with(prefix)) {
        return false;
    }
    text.remove_prefix(prefix.size());
    return true;
}

/// The text up to the closing quote, a backslash standing for what follows it.
std::optional<std::string> unquoted(std::string_view text)
{
    std::string value;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] == '"') {
            return value;
        }
        if (text[index] == '\\' && index + 1 < text.size()) {
            ++index;
        }
        value += text[index];
    }
    return std::nullopt;
}

/// The folder that one line gives to `variable`; nothing if it gives none.
std::optional<FileURL> assignedFolder(std::string_view line, std::string_view variable, const FileURL& homeDirectory)
{
    line = withoutLeadingBlanks(line);
    if (!take(line, variable)) {
        return std::nullopt;
    }
    line = withoutLeadingBlanks(line);
    if (!take(line, "=")) {
        return std::nullopt;
    }
    line = withoutLeadingBlanks(line);
    if (!take(line, "\"")) {
        return std::nullopt;
    }
    const bool isInHome = take(line, "$HOME");
    const auto value = unquoted(line);
    if (!value || value->find('\0') != std::string::npos
        || !(value->starts_with('/') || (isInHome && value->empty()))) {
        return std::nullopt;
    }
    return isInHome ? homeDirectory.appending(*value, DirectoryHint::isFolder) : FileURL::folder(*value);
}

FileURL baseDirectory(const Environment& environment, std::string_view variable, std::string_view pathInHome)
{
    if (const auto folder = environment.value(variable); folder && folder->starts_with('/')) {
        return FileURL::folder(*folder);
    }
    const auto home = environment.value("HOME");
    const auto homeFolder = home && home->starts_with('/') ? FileURL::folder(*home) : homeDirectoryForCurrentUser();
    return homeFolder.appending(pathInHome, DirectoryHint::isFolder);
}

} // namespace

std::optional<FileURL> userDirectory(
    UserDirectory directory, std::string_view userDirsFile, const FileURL& homeDirectory)
{
    const auto& row = kRows[static_cast<std::size_t>(directory)];
    auto folder = homeDirectory.appending(row.englishName, DirectoryHint::isFolder);
    while (!userDirsFile.empty()) {
        const auto end = std::min(userDirsFile.find('\n'), userDirsFile.size());
        if (auto assigned = assignedFolder(userDirsFile.substr(0, end), row.variable, homeDirectory)) {
            folder = *std::move(assigned);
        }
        userDirsFile.remove_prefix(std::min(end + 1, userDirsFile.size()));
    }
    return folder == FileURL::folder(homeDirectory.path()) ? std::nullopt : std::optional(std::move(folder));
}

FileURL dataDirectoryForCurrentUser(const Environment& environment)
{
    return baseDirectory(environment, "XDG_DATA_HOME", ".local/share");
}

FileURL configurationDirectoryForCurrentUser(const Environment& environment)
{
    return baseDirectory(environment, "XDG_CONFIG_HOME", ".config");
}

FileURL cacheDirectoryForCurrentUser(const Environment& environment)
{
    return baseDirectory(environment, "XDG_CACHE_HOME", ".cache");
}

FileURL temporaryDirectory(const Environment& environment)
{
    const auto named = environment.value("TMPDIR");
    return FileURL::folder(named && named->starts_with('/') ? *named : "/tmp");
}

} // namespace Platform
