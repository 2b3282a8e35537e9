#pragma once

#include "CleanerCore/Scan/CleanupCandidate.h"
#include "CleanerCore/Scan/SkippedItem.h"
#include "Platform/Base/Date.h"

#include <cstdint>
#include <vector>

namespace CleanerCore {

/// What a scan found, and what it left alone.
struct ScanReport {
    /// A report of now without any item.
    static ScanReport empty();

    ScanReport() = default;
    /// Sorts the candidates: by safety, then the larger first, equal ones in the order given. The skipped items stay
    /// in the order of discovery.
    ScanReport(
        Platform::Date scannedAt, std::vector<CleanupCandidate> candidates, std::vector<SkippedItem> skippedItems);

    Platform::Date scannedAt;
    std::vector<CleanupCandidate> candidates;
    std::vector<SkippedItem> skippedItems;

    /// The sum of all candidates' sizes.
    [[nodiscard]] std::int64_t reclaimableBytes() const;

    friend bool operator==(const ScanReport&, const ScanReport&) = default;
};

} // namespace CleanerCore
