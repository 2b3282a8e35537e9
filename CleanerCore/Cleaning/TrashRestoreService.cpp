#include "CleanerCore/Cleaning/TrashRestoreService.h"

#include "CleanerCore/Cleaning/CleaningFailure.h"
#include "CleanerCore/Cleaning/MoveAnchors.h"
#include "CleanerCore/Cleaning/TrashRoots.h"
#include "CleanerCore/Safety/SafePathPolicy.h"

#include <utility>

namespace CleanerCore {

namespace {

using Kind = CleaningError::Kind;
using Platform::FileErrorKind;
using Platform::FileURL;

using RestoreVerdict = std::expected<void, CleaningFailure>;

RestoreVerdict verdictOf(const std::expected<void, CleaningError>& verdict)
{
    if (!verdict) {
        return CleaningFailure::refused(verdict.error());
    }
    return {};
}

bool isSymbolicLinkEntry(const FileURL& url, const Platform::FileManager& fileManager)
{
    if (const auto values = fileManager.resourceValues(url); values && values->isSymbolicLink) {
        return *values->isSymbolicLink;
    }
    const auto attributes = fileManager.attributes(url);
    return attributes && attributes->type == Platform::FileType::symbolicLink;
}

/// A link that leads nowhere is an entry, too: nothing may be put in its place.
bool entryExists(const FileURL& url, const Platform::FileManager& fileManager)
{
    return fileManager.existence(url) != Platform::Existence::missing || isSymbolicLinkEntry(url, fileManager);
}

/// One restore: what every item of it is held against.
class Restore {
public:
    Restore(const Platform::FileManager& fileManager, Platform::Trash& trash,
        std::span<const ScanLocation> allowedLocations, const std::optional<std::vector<FileURL>>& allowedTrashRootURLs,
        const CleanupEligibilityPolicy& eligibility, const std::optional<FileURL>& homeDirectory)
        : m_fileManager(fileManager)
        , m_trash(trash)
        , m_safety(homeDirectory, fileManager)
        , m_policy(rootURLs(allowedLocations), m_safety, fileManager)
        , m_allowedTrashRootURLs(allowedTrashRootURLs)
        , m_eligibility(eligibility)
        , m_homeDirectory(homeDirectory)
    {
    }

    /// The checks come in a fixed order: the first that fails gives the reason.
    [[nodiscard]] RestoreVerdict restore(const CleanedItem& item) const;

private:
    [[nodiscard]] RestoreVerdict validateRestoreSource(const FileURL& trashed, const FileURL& original) const;
    [[nodiscard]] RestoreVerdict validateRestoreSourceIdentity(
        const std::optional<FileResourceIdentity>& expected, const FileURL& trashed) const;
    [[nodiscard]] RestoreVerdict putBack(const Platform::RestoreAnchor& anchor) const;

    const Platform::FileManager& m_fileManager;
    Platform::Trash& m_trash;
    ScanRootSafety m_safety;
    SafePathPolicy m_policy;
    const std::optional<std::vector<FileURL>>& m_allowedTrashRootURLs;
    const CleanupEligibilityPolicy& m_eligibility;
    const std::optional<FileURL>& m_homeDirectory;
};

RestoreVerdict Restore::restore(const CleanedItem& item) const
{
    const auto& original = item.candidate.url;
    if (!item.destinationURL) {
        return CleaningFailure::refused(Kind::restoreDestinationMissing, original);
    }
    const auto& trashed = *item.destinationURL;
    const auto root = m_eligibility.eligibleRoot(original, m_fileManager);
    if (!root) {
        return CleaningFailure::refused(Kind::pathNotAllowed, original);
    }
    if (auto verdict = verdictOf(m_policy.validateRestoreDestination(original, m_fileManager)); !verdict) {
        return verdict;
    }
    if (!entryExists(trashed, m_fileManager)) {
        return CleaningFailure::refused(Kind::restoreDestinationMissing, trashed);
    }
    if (isSymbolicLinkEntry(trashed, m_fileManager)) {
        return CleaningFailure::refused(Kind::symbolicLink, trashed);
    }
    if (auto verdict = validateRestoreSource(trashed, original); !verdict) {
        return verdict;
    }
    if (auto verdict = validateRestoreSourceIdentity(item.restoreSourceIdentity, trashed); !verdict) {
        return verdict;
    }
    if (entryExists(original, m_fileManager)) {
        return CleaningFailure::refused(Kind::restoreDestinationExists, original);
    }
    return putBack({
        .trashedItem = trashed,
        .isConfirmed = isItem(*item.restoreSourceIdentity),
        .root = folderAnchor(*root),
        .destination = original,
    });
}

RestoreVerdict Restore::validateRestoreSource(const FileURL& trashed, const FileURL& original) const
{
    const auto roots = restoreSourceRootURLs(original, m_allowedTrashRootURLs, m_trash, m_fileManager, m_homeDirectory);
    if (roots.empty()) {
        return CleaningFailure::refused(Kind::pathNotAllowed, trashed);
    }
    const SafePathPolicy policy(roots, m_safety, m_fileManager, NoTouchScope::trash);
    return verdictOf(policy.validate(trashed, m_fileManager));
}

RestoreVerdict Restore::validateRestoreSourceIdentity(
    const std::optional<FileResourceIdentity>& expected, const FileURL& trashed) const
{
    if (!expected) {
        return CleaningFailure::refused(Kind::missingRestoreSourceIdentity, trashed);
    }
    const auto current = FileResourceIdentity::captureIfAvailable(trashed, m_fileManager);
    if (!current) {
        return CleaningFailure::refused(Kind::unreadableAttributes, trashed);
    }
    if (*current != *expected) {
        return CleaningFailure::refused(Kind::restoreSourceChanged, trashed);
    }
    return {};
}

RestoreVerdict Restore::putBack(const Platform::RestoreAnchor& anchor) const
{
    const auto restored = m_trash.restoreItem(anchor);
    if (restored) {
        return {};
    }
    switch (restored.error().kind) {
    case FileErrorKind::itemChanged:
        return CleaningFailure::refused(Kind::restoreSourceChanged, anchor.trashedItem);
    case FileErrorKind::fileExists:
        return CleaningFailure::refused(Kind::restoreDestinationExists, anchor.destination);
    default:
        return CleaningFailure::refused(restored.error());
    }
}

} // namespace

RestoreResult TrashRestoreService::restore(std::span<const CleanedItem> items,
    std::span<const ScanLocation> allowedLocations, const CleanupEligibilityPolicy& cleanupEligibilityPolicy,
    const std::stop_token& stop, const std::optional<FileURL>& homeDirectory, const ItemProgressReport& report) const
{
    const Restore work(
        m_fileManager, m_trash, allowedLocations, m_allowedTrashRootURLs, cleanupEligibilityPolicy, homeDirectory);
    RestoreResult result;
    for (const auto& item : items) {
        if (stop.stop_requested()) {
            break;
        }
        if (auto restored = work.restore(item)) {
            result.restoredItems.push_back({item, item.candidate.url});
        } else {
            result.failedItems.push_back({item, std::move(restored.error().reason)});
        }
        if (report) {
            report({.doneItems = result.restoredItems.size() + result.failedItems.size(), .allItems = items.size()});
        }
    }
    result.wasCancelled = stop.stop_requested();
    // A failure takes nothing back: every item is where the result says, only not yet safe from a loss of power.
    std::ignore = m_trash.settle();
    return result;
}

} // namespace CleanerCore
