#pragma once

#include "Platform/Base/FileURL.h"

#include <expected>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace KarvelloCLI {

/// The folder that the relative ones among `paths` count from. The error is a sentence for the user: there are such
/// paths, and the working directory does not exist any more.
[[nodiscard]] std::expected<Platform::FileURL, std::string> workingDirectoryFor(std::span<const std::string> paths);

/// The folder that a user means; a relative one counts from `workingDirectory`.
[[nodiscard]] Platform::FileURL absoluteFolder(std::string_view words, const Platform::FileURL& workingDirectory);

/// The folders of several words, in their order; one that is named twice is one folder.
[[nodiscard]] std::vector<Platform::FileURL> absoluteFolders(
    std::span<const std::string> words, const Platform::FileURL& workingDirectory);

} // namespace KarvelloCLI
