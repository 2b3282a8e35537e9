#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "CleanerCore/Cleaning/CleanResult.h"
#include "CleanerCore/Cleaning/CleanupRestoreCenterSnapshot.h"

#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

/// What of past cleans may be put back.
namespace KarvelloUI::RestoreCenter {

/// Whether a restore has what it needs to find the item and to know it again.
[[nodiscard]] bool isRestorable(const CleanerCore::CleanedItem& item);
[[nodiscard]] bool hasRestorableItems(const std::optional<CleanerCore::CleanResult>& result);
/// Those of these ids that are restorable, in the order of the result.
[[nodiscard]] std::vector<CleanerCore::CleanedItem> restorableItems(
    const CleanerCore::CleanResult& result, const std::set<std::string, std::less<>>& candidateIDs);

/// The newest clean of the review screen that moved something to the Trash, unless something was restored since then.
/// `entries` are in the order of the log.
[[nodiscard]] const CleanerCore::CleanupAuditEntry* latestTrashMoveAuditEntry(
    std::span<const CleanerCore::CleanupAuditEntry> entries);

/// Of the last clean, or without one of what the log tells.
[[nodiscard]] CleanerCore::CleanupRestoreCenterSnapshot snapshot(
    const std::optional<CleanerCore::CleanResult>& lastCleanResult,
    std::span<const CleanerCore::CleanupAuditEntry> entries);

} // namespace KarvelloUI::RestoreCenter
