#pragma once

#include "CleanerCore/Scan/CleanupScanMode.h"
#include "CleanerCore/Scan/ScanLocation.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Environment.h"

#include <optional>
#include <stop_token>
#include <vector>

/// Where regenerable clutter lives. Three levels: `standard` has well-known places with a guard of one day,
/// `aggressive` drops the guard, preselects nothing and adds what needs care, `direct` adds what needs a person's
/// judgement and what only a build outside of a sandbox can reach. A mode that is not available counts as `standard`.
///
/// The functions only look at the disk. After a stop they return what they have, which is less; they never fail.
namespace CleanerCore::StorageProfiles {

/// The lists for `homeDirectory`: those of macOS if it has a folder "Library", else those of the XDG base directories.
/// `environment` tells where the person moved the latter, and the caches of single tools.
[[nodiscard]] std::vector<ScanLocation> locations(CleanupScanMode mode, const Platform::FileURL& homeDirectory,
    const Platform::FileManager& fileManager, const Platform::Environment& environment, bool includesDirectDistribution,
    const std::stop_token& stop = {});

/// The standard list. A root that does not exist is listed, too: the scan tells of it.
[[nodiscard]] std::vector<ScanLocation> macOSDefaultLocations(const Platform::FileURL& homeDirectory);

[[nodiscard]] std::vector<ScanLocation> macOSLocations(CleanupScanMode mode, const Platform::FileURL& homeDirectory,
    const Platform::FileManager& fileManager, bool includesDirectDistribution, const std::stop_token& stop = {});

/// Every root exists, is a real folder inside the home and lies in no other one.
[[nodiscard]] std::vector<ScanLocation> xdgLocations(CleanupScanMode mode, const Platform::FileURL& homeDirectory,
    const Platform::FileManager& fileManager, const Platform::Environment& environment, bool includesDirectDistribution,
    const std::stop_token& stop = {});

/// What an application that is confined to its own sandbox can clean: its caches, if it has a folder for them, and its
/// temporary items.
[[nodiscard]] std::vector<ScanLocation> appSandboxLocations(
    const std::optional<Platform::FileURL>& cachesDirectory, const Platform::FileURL& temporaryDirectory);

} // namespace CleanerCore::StorageProfiles
