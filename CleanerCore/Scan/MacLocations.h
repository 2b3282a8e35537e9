#pragma once

#include "CleanerCore/Scan/ScanLocation.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"

#include <stop_token>
#include <vector>

namespace CleanerCore {

/// The four well-known places of a home of macOS, whether they exist or not.
[[nodiscard]] std::vector<ScanLocation> standardMacLocations(const Platform::FileURL& homeDirectory);

/// The standard list without its guards, and the caches of single applications and simulators.
[[nodiscard]] std::vector<ScanLocation> aggressiveMacLocations(
    const Platform::FileURL& homeDirectory, const Platform::FileManager& fileManager, const std::stop_token& stop);

/// A standard location as an aggressive scan has it: nothing is preselected, nothing counts as safe, no age is asked
/// for, and hidden items and packages are looked into. The price is a person's review, not safety: what is cleaned is
/// checked again.
[[nodiscard]] ScanLocation rebuiltForAggressiveScan(ScanLocation location);

} // namespace CleanerCore
