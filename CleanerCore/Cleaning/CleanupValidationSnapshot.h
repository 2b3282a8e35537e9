#pragma once

#include "CleanerCore/Cleaning/CleaningFailure.h"
#include "CleanerCore/Safety/CleanupValidationOptions.h"
#include "Platform/Base/Date.h"
#include "Platform/Base/FileURL.h"
#include "Platform/Files/FileManager.h"

#include <expected>
#include <optional>
#include <stop_token>

namespace CleanerCore {

/// An item and all that it holds, as they are right before a clean.
struct CleanupValidationSnapshot {
    /// The newest modification among what the scan looked at, the item's own included.
    std::optional<Platform::Date> latestModificationDate;
    /// The first protected path that the walk met, or the first item on another volume; it may be the item itself.
    std::optional<Platform::FileURL> noTouchDescendantURL;

    /// Walks everything in the item, hidden or not. The walk ends at what is protected, and at the first thing that
    /// cannot be seen: that is an error, and so are a symbolic link at `url` and more descendants than allowed.
    static std::expected<CleanupValidationSnapshot, CleaningFailure> take(const Platform::FileURL& url,
        const CleanupValidationOptions& options, const Platform::FileManager& fileManager, const std::stop_token& stop);
};

} // namespace CleanerCore
