#pragma once

#include "CleanerCore/Scan/CleanupCandidate.h"
#include "CleanerCore/Scan/FileResourceIdentity.h"
#include "Platform/Base/FileURL.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace CleanerCore {

/// An item that was cleaned, and what a restore needs to know of it.
struct CleanedItem {
    CleanupCandidate candidate;
    /// Where the item is in the Trash; absent after a permanent deletion, or where the system did not tell.
    std::optional<Platform::FileURL> destinationURL = {};
    /// The folder that holds `destinationURL`.
    std::optional<Platform::FileURL> restoreSourceRootURL = {};
    /// The identity of the trashed item.
    std::optional<FileResourceIdentity> restoreSourceIdentity = {};

    friend bool operator==(const CleanedItem&, const CleanedItem&) = default;
};

struct FailedCleanItem {
    CleanupCandidate candidate;
    /// For a person to read.
    std::string reason;

    friend bool operator==(const FailedCleanItem&, const FailedCleanItem&) = default;
};

/// What became of the candidates of one clean. After a cancellation those that were not reached appear nowhere.
struct CleanResult {
    std::vector<CleanedItem> cleanedItems = {};
    std::vector<FailedCleanItem> failedItems = {};
    bool wasCancelled = false;

    /// The sum of the sizes of the cleaned items.
    [[nodiscard]] std::int64_t reclaimedBytes() const;

    friend bool operator==(const CleanResult&, const CleanResult&) = default;
};

} // namespace CleanerCore
