#pragma once

#include "CleanerCore/Scan/CleanupCandidate.h"
#include "CleanerCore/Scan/CleanupCategory.h"
#include "KarvelloUI/Copy/Vocabulary/CleanupIgnoreDuration.h"
#include "Platform/Base/Date.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace KarvelloUI {

/// A day or a week later; nothing for `untilShownAgain`.
[[nodiscard]] std::optional<Platform::Date> expirationDate(CleanupIgnoreDuration duration, Platform::Date from);

/// How long the candidate may stay out of the list, in the order of the choices. What the user may want back, or has to
/// look at, comes back by itself.
[[nodiscard]] std::span<const CleanupIgnoreDuration> availableIgnoreDurations(
    const CleanerCore::CleanupCandidate& candidate);
/// The longest that is available.
[[nodiscard]] CleanupIgnoreDuration defaultIgnoreDuration(const CleanerCore::CleanupCandidate& candidate);

/// The rule that keeps one candidate out of the list, and the candidate as it was.
struct IgnoredCleanupItem {
    IgnoredCleanupItem() = default;
    IgnoredCleanupItem(
        const CleanerCore::CleanupCandidate& candidate, Platform::Date ignoredAt, CleanupIgnoreDuration duration);

    /// The candidate's.
    std::string id;
    /// Bytes as the file system has them, and so is the path: not necessarily UTF-8.
    std::string displayName;
    std::string path;
    CleanerCore::CleanupCategory category = CleanerCore::CleanupCategory::customFolder;
    std::int64_t sizeBytes = 0;
    Platform::Date ignoredAt;
    CleanupIgnoreDuration duration = CleanupIgnoreDuration::oneDay;
    std::optional<Platform::Date> expiresAt;

    /// No longer at the very moment of expiry.
    [[nodiscard]] bool isActive(Platform::Date date) const { return !expiresAt || date < *expiresAt; }

    friend bool operator==(const IgnoredCleanupItem&, const IgnoredCleanupItem&) = default;
};

/// The latest first; of one date, in the order of the paths.
void sortIgnoredItems(std::vector<IgnoredCleanupItem>& items);
[[nodiscard]] std::vector<IgnoredCleanupItem> activeIgnoredItems(
    std::span<const IgnoredCleanupItem> items, Platform::Date now);
/// The active ones with `added` in its place, instead of any other rule for the same candidate.
[[nodiscard]] std::vector<IgnoredCleanupItem> addingIgnoredItem(
    std::span<const IgnoredCleanupItem> items, IgnoredCleanupItem added, Platform::Date now);

} // namespace KarvelloUI
