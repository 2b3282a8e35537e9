#pragma once

#include "CleanerCore/Cleaning/CleanResult.h"
#include "CleanerCore/Scan/ScanLocation.h"

#include <span>
#include <vector>

namespace KarvelloCLI {

/// The locations that a restore of `items` is allowed to write to, each once. The log does not tell which location an
/// item was found in, so it is the deepest of `known` that holds it; for an item that none holds, which came from a folder
/// of the user's own, it is the folder that it goes back to. None of this makes a folder safe: the rules judge each.
[[nodiscard]] std::vector<CleanerCore::ScanLocation> restoreLocations(
    std::span<const CleanerCore::CleanedItem> items, std::span<const CleanerCore::ScanLocation> known);

} // namespace KarvelloCLI
