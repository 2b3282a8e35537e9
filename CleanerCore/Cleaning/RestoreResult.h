#pragma once

#include "CleanerCore/Cleaning/CleanResult.h"
#include "Platform/Base/FileURL.h"

#include <string>
#include <vector>

namespace CleanerCore {

struct RestoredCleanedItem {
    CleanedItem cleanedItem;
    Platform::FileURL restoredURL;

    friend bool operator==(const RestoredCleanedItem&, const RestoredCleanedItem&) = default;
};

struct FailedRestoreItem {
    CleanedItem cleanedItem;
    /// For a person to read.
    std::string reason;

    friend bool operator==(const FailedRestoreItem&, const FailedRestoreItem&) = default;
};

/// What became of the items of one restore.
struct RestoreResult {
    std::vector<RestoredCleanedItem> restoredItems;
    std::vector<FailedRestoreItem> failedItems;
    bool wasCancelled = false;

    friend bool operator==(const RestoreResult&, const RestoreResult&) = default;
};

} // namespace CleanerCore
