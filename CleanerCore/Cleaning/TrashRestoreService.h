#pragma once

#include "CleanerCore/Cleaning/ItemProgress.h"
#include "CleanerCore/Cleaning/RestoreResult.h"
#include "CleanerCore/Safety/CleanupEligibilityPolicy.h"
#include "CleanerCore/Scan/ScanLocation.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"
#include "Platform/Files/Trash.h"

#include <optional>
#include <span>
#include <stop_token>
#include <vector>

namespace CleanerCore {

/// Puts items that were moved to the Trash back where they were. A restore writes to the user's folders, so it passes as
/// many checks as a clean: the old place must still be eligible and empty, the item must lie in a real Trash, and it
/// must be the very item that was trashed. Every refusal leaves both places untouched.
class TrashRestoreService {
public:
    /// The first two must outlive the service. `allowedTrashRootURLs`, when given, takes the place of the system's
    /// Trash folders.
    TrashRestoreService(const Platform::FileManager& fileManager, Platform::Trash& trash,
        std::optional<std::vector<Platform::FileURL>> allowedTrashRootURLs = std::nullopt)
        : m_fileManager(fileManager)
        , m_trash(trash)
        , m_allowedTrashRootURLs(std::move(allowedTrashRootURLs))
    {
    }

    [[nodiscard]] RestoreResult restore(std::span<const CleanedItem> items,
        std::span<const ScanLocation> allowedLocations, const CleanupEligibilityPolicy& cleanupEligibilityPolicy,
        const std::stop_token& stop = {}, const std::optional<Platform::FileURL>& homeDirectory = std::nullopt,
        const ItemProgressReport& report = {}) const;

private:
    const Platform::FileManager& m_fileManager;
    Platform::Trash& m_trash;
    std::optional<std::vector<Platform::FileURL>> m_allowedTrashRootURLs;
};

} // namespace CleanerCore
