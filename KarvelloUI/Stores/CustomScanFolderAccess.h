#pragma once

#include "CleanerCore/Scan/SkippedItem.h"
#include "KarvelloUI/Stores/CustomScanFolder.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Services/Bookmarks.h"
#include "Platform/Services/Environment.h"

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace KarvelloUI {

struct CustomScanFolderAccessResult;

/// Access to the folders that the user added, for one scan or clean. Started and stopped on the same task.
struct CustomScanFolderAccess {
    static constexpr std::string_view unavailableReason =
        "Could not start security-scoped access for custom folder. Remove and add the folder again, or grant Files & "
        "Folders or Full Disk Access.";

    /// Only those that were really started.
    std::vector<Platform::FileURL> accessedURLs = {};

    /// `requiresAccess` goes through the rule of `requiresSecurityScopedAccess`: where access is not required, a failed
    /// start means nothing.
    [[nodiscard]] static CustomScanFolderAccessResult start(std::span<const ResolvedCustomScanFolder> folders,
        const Platform::Bookmarks& bookmarks, const Platform::Environment& environment,
        std::optional<bool> requiresAccess = std::nullopt);
    void stop(const Platform::Bookmarks& bookmarks) const;

    friend bool operator==(const CustomScanFolderAccess&, const CustomScanFolderAccess&) = default;
};

struct CustomScanFolderAccessResult {
    CustomScanFolderAccess access = {};
    std::vector<CleanerCore::SkippedItem> skippedItems = {};

    friend bool operator==(const CustomScanFolderAccessResult&, const CustomScanFolderAccessResult&) = default;
};

} // namespace KarvelloUI
