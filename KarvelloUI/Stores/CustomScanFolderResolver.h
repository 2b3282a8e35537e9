#pragma once

#include "CleanerCore/Scan/ScanLocation.h"
#include "CleanerCore/Scan/SkippedItem.h"
#include "KarvelloUI/Stores/CustomScanFolder.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Bookmarks.h"

#include <span>
#include <string_view>
#include <vector>

namespace KarvelloUI {

/// What a scan makes of the folders that the user added: a folder is either resolved and has its location, or is skipped.
struct CustomScanFolderResolution {
    static constexpr std::string_view staleReason =
        "Custom folder stale bookmark. Remove and add this folder again before cleanup.";

    std::vector<CleanerCore::ScanLocation> locations = {};
    std::vector<ResolvedCustomScanFolder> resolvedFolders = {};
    std::vector<CleanerCore::SkippedItem> skippedItems = {};

    [[nodiscard]] static CustomScanFolderResolution empty() { return {}; }

    friend bool operator==(const CustomScanFolderResolution&, const CustomScanFolderResolution&) = default;
};

namespace CustomScanFolderResolver {

/// In the order of the folders. Never fails as a whole. For any thread.
[[nodiscard]] CustomScanFolderResolution resolve(std::span<const CustomScanFolder> folders,
    const Platform::FileManager& fileManager, const Platform::Bookmarks& bookmarks);

} // namespace CustomScanFolderResolver

} // namespace KarvelloUI
