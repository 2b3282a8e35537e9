#pragma once

#include "KarvelloCLI/TerminalText.h"
#include "Platform/Base/FileURL.h"

#include <span>
#include <string>
#include <vector>

namespace KarvelloCLI {

/// The folders that a user named, for a heading: the first few and how many more there are, or only how many where names
/// are not to be told. Names are as they are on disk.
[[nodiscard]] std::vector<std::string> folderNames(
    std::span<const Platform::FileURL> folders, const HomePathAbbreviation& paths, bool isRedacted);

} // namespace KarvelloCLI
