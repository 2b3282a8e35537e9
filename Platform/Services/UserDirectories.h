#pragma once

#include "Platform/Base/FileURL.h"
#include "Platform/Services/Environment.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace Platform {

/// The base folder for what programs keep for their user (XDG Base Directory Specification): `$XDG_DATA_HOME` where it
/// is an absolute path, else ".local/share" in the home folder, which `$HOME` tells, or the user database.
[[nodiscard]] FileURL dataDirectoryForCurrentUser(const Environment& environment);
/// The same for what a user has chosen: `$XDG_CONFIG_HOME`, else ".config".
[[nodiscard]] FileURL configurationDirectoryForCurrentUser(const Environment& environment);
/// The same for what can be made again: `$XDG_CACHE_HOME`, else ".cache".
[[nodiscard]] FileURL cacheDirectoryForCurrentUser(const Environment& environment);
/// `$TMPDIR` where it is an absolute path, else "/tmp".
[[nodiscard]] FileURL temporaryDirectory(const Environment& environment);

/// The folders that a desktop makes for its user's files, each under a name in the user's language.
enum class UserDirectory : std::uint8_t {
    downloads,
    desktop,
    documents,
    videos,
    pictures,
    music,
    templates,
    publicShare,
};

inline constexpr std::array kUserDirectories{UserDirectory::downloads, UserDirectory::desktop, UserDirectory::documents,
    UserDirectory::videos, UserDirectory::pictures, UserDirectory::music, UserDirectory::templates,
    UserDirectory::publicShare};

/// Where the contents of "user-dirs.dirs" put a folder (user-dirs.dirs(5)): lines of the form XDG_..._DIR="$HOME/name"
/// or XDG_..._DIR="/name", of which the last counts and others are passed over. A folder that no line names has its
/// English name. Nothing for one that is the home itself, which is how a user goes without it.
[[nodiscard]] std::optional<FileURL> userDirectory(
    UserDirectory directory, std::string_view userDirsFile, const FileURL& homeDirectory);

} // namespace Platform
