#pragma once

#include "CleanerCore/Scan/SkippedItem.h"
#include "KarvelloUI/Sessions/SessionServices.h"
#include "KarvelloUI/Stores/CustomScanFolderAccess.h"
#include "KarvelloUI/Stores/HomeAccessBookmark.h"
#include "KarvelloUI/Stores/HomeAccessSecurityScope.h"

#include <optional>
#include <span>
#include <vector>

namespace KarvelloUI {

/// Access to the folders of a scan for as long as its files are looked at: opened by the constructor, closed by the
/// destructor, both on the thread that works.
class ScanRootAccess {
public:
    /// `services` must outlive this object.
    ScanRootAccess(const SessionServices& services, std::span<const ResolvedCustomScanFolder> folders,
        const std::optional<ResolvedHomeAccessBookmark>& home);
    ~ScanRootAccess();
    ScanRootAccess(const ScanRootAccess&) = delete;
    ScanRootAccess& operator=(const ScanRootAccess&) = delete;

    /// The folders to which access could not be opened, the home last.
    [[nodiscard]] const std::vector<CleanerCore::SkippedItem>& skippedItems() const { return m_skippedItems; }

private:
    const Platform::Bookmarks& m_bookmarks;
    CustomScanFolderAccess m_folders;
    HomeAccessSecurityScope m_home;
    std::vector<CleanerCore::SkippedItem> m_skippedItems;
};

} // namespace KarvelloUI
