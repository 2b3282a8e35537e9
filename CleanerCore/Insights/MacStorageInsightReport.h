#pragma once

#include "CleanerCore/Insights/DuplicateFileGroup.h"
#include "CleanerCore/Insights/FileInsight.h"
#include "CleanerCore/Insights/StorageMapItem.h"
#include "CleanerCore/Insights/SystemResourceSnapshot.h"
#include "CleanerCore/Scan/SkippedItem.h"
#include "Platform/Base/Date.h"

#include <cstdint>
#include <vector>

namespace CleanerCore {

/// Where the space went: what an insight scan found, and what it gave up.
struct MacStorageInsightReport {
    /// What a report is made from, in any order; the constructor sorts it.
    struct Fields {
        Platform::Date scannedAt;
        std::vector<StorageMapItem> heatmapItems = {};
        std::vector<FileInsight> largeFiles = {};
        std::vector<FileInsight> downloadFiles = {};
        std::vector<DuplicateFileGroup> duplicateGroups = {};
        std::vector<FileInsight> securityFindings = {};
        std::vector<SkippedItem> skippedItems = {};
        bool isTruncated = false;
        SystemResourceSnapshot systemSnapshot = {};
    };

    MacStorageInsightReport() = default;
    explicit MacStorageInsightReport(Fields fields);
    /// A report of now without any item, with the current snapshot.
    static MacStorageInsightReport empty();

    Platform::Date scannedAt;
    /// The larger first, equal ones in the order given.
    std::vector<StorageMapItem> heatmapItems;
    /// `prefersReviewInsight` gives the order of these two.
    std::vector<FileInsight> largeFiles;
    std::vector<FileInsight> downloadFiles;
    /// By `wastedBytes`, the larger first, equal ones in the order given.
    std::vector<DuplicateFileGroup> duplicateGroups;
    /// The larger first, equal ones in the order given.
    std::vector<FileInsight> securityFindings;
    /// As they arose.
    std::vector<SkippedItem> skippedItems;
    /// Some budget ran out, so there is more than is told. A list that is full says nothing of this kind.
    bool isTruncated = false;
    SystemResourceSnapshot systemSnapshot;

    [[nodiscard]] MacStorageInsightReport replacingSystemSnapshot(SystemResourceSnapshot snapshot) const;
    /// The extra copies of all groups, group by group.
    [[nodiscard]] std::vector<FileInsight> duplicateFiles() const;
    /// What the extra copies of all groups hold on the disk; a sum beyond the range stays at its limit.
    [[nodiscard]] std::int64_t duplicateWastedBytes() const;

    /// Brings the lists into their orders.
    void sort();

    friend bool operator==(const MacStorageInsightReport&, const MacStorageInsightReport&) = default;
};

} // namespace CleanerCore
