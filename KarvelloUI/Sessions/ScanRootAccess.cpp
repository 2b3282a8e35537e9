#include "KarvelloUI/Sessions/ScanRootAccess.h"

#include <utility>

namespace KarvelloUI {

ScanRootAccess::ScanRootAccess(const SessionServices& services, std::span<const ResolvedCustomScanFolder> folders,
    const std::optional<ResolvedHomeAccessBookmark>& home)
    : m_bookmarks(services.bookmarks)
{
    auto ofFolders = CustomScanFolderAccess::start(folders, m_bookmarks, services.environment);
    m_folders = std::move(ofFolders.access);
    m_skippedItems = std::move(ofFolders.skippedItems);
    auto ofHome = HomeAccessSecurityScope::start(
        home ? std::optional(home->grantedURL) : std::nullopt, m_bookmarks, services.environment);
    m_home = std::move(ofHome.scope);
    if (ofHome.skippedItem) {
        m_skippedItems.push_back(*std::move(ofHome.skippedItem));
    }
}

ScanRootAccess::~ScanRootAccess()
{
    m_home.stop(m_bookmarks);
    m_folders.stop(m_bookmarks);
}

} // namespace KarvelloUI
