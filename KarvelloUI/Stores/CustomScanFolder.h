#pragma once

#include "CleanerCore/Scan/CustomFolderLocation.h"
#include "KarvelloUI/Stores/SecurityScopedAccess.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Base/UUID.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Services/Bookmarks.h"

#include <expected>
#include <span>
#include <string>
#include <vector>

namespace KarvelloUI {

using CleanerCore::CustomScanFolderError;

struct ResolvedCustomScanFolder;

/// A folder that the user added to the scan.
struct CustomScanFolder {
    Platform::UUID id;
    /// Bytes as the file system has them: not necessarily UTF-8.
    std::string displayName;
    /// Where the folder was when it was added.
    std::string fallbackPath;
    Platform::BookmarkData bookmarkData;
    Platform::Date createdAt;

    /// Roots are judged against the person's real home.
    [[nodiscard]] static std::expected<CustomScanFolder, FolderAccessError<CustomScanFolderError>> make(
        const Platform::FileURL& picked, const Platform::FileManager& fileManager, const Platform::Bookmarks& bookmarks,
        Platform::Date now, Platform::UUID id = Platform::UUID::random());
    /// Judges the folder anew.
    [[nodiscard]] std::expected<ResolvedCustomScanFolder, FolderAccessError<CustomScanFolderError>> resolve(
        const Platform::FileManager& fileManager, const Platform::Bookmarks& bookmarks) const;

    friend bool operator==(const CustomScanFolder&, const CustomScanFolder&) = default;
};

struct ResolvedCustomScanFolder {
    CustomScanFolder folder;
    Platform::FileURL url;
    bool bookmarkWasStale = false;

    friend bool operator==(const ResolvedCustomScanFolder&, const ResolvedCustomScanFolder&) = default;
};

/// With `added` in its place by name, instead of any folder with the same path.
[[nodiscard]] std::vector<CustomScanFolder> addingFolder(
    std::span<const CustomScanFolder> folders, CustomScanFolder added);

} // namespace KarvelloUI
