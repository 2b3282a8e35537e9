#pragma once

#include "CleanerCore/Scan/ScanLocation.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"

#include <stop_token>
#include <vector>

namespace CleanerCore {

/// The stores of package managers and tool chains that a build outside of a sandbox can reach: those that exist, are
/// real folders and lie in the home. The others are left out without a word.
[[nodiscard]] std::vector<ScanLocation> directLocations(
    const Platform::FileURL& homeDirectory, const Platform::FileManager& fileManager, const std::stop_token& stop);

} // namespace CleanerCore
