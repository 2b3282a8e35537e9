#include "CleanerCore/Insights/MacStorageInsightReport.h"

#include "CleanerCore/Insights/ReviewOrder.h"
#include "Platform/Base/CheckedMath.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace CleanerCore {

MacStorageInsightReport::MacStorageInsightReport(Fields fields)
    : scannedAt(fields.scannedAt)
    , heatmapItems(std::move(fields.heatmapItems))
    , largeFiles(std::move(fields.largeFiles))
    , downloadFiles(std::move(fields.downloadFiles))
    , duplicateGroups(std::move(fields.duplicateGroups))
    , securityFindings(std::move(fields.securityFindings))
    , skippedItems(std::move(fields.skippedItems))
    , isTruncated(fields.isTruncated)
    , systemSnapshot(std::move(fields.systemSnapshot))
{
    sort();
}

MacStorageInsightReport MacStorageInsightReport::empty()
{
    return MacStorageInsightReport(
        {.scannedAt = Platform::Date::now(), .systemSnapshot = SystemResourceSnapshot::current()});
}

void MacStorageInsightReport::sort()
{
    std::ranges::stable_sort(heatmapItems, std::ranges::greater(), &StorageMapItem::sizeBytes);
    std::ranges::stable_sort(largeFiles, prefersReviewInsight);
    std::ranges::stable_sort(downloadFiles, prefersReviewInsight);
    std::ranges::stable_sort(duplicateGroups, std::ranges::greater(), &DuplicateFileGroup::wastedBytes);
    std::ranges::stable_sort(securityFindings, std::ranges::greater(), &FileInsight::sizeBytes);
}

MacStorageInsightReport MacStorageInsightReport::replacingSystemSnapshot(SystemResourceSnapshot snapshot) const
{
    auto copy = *this;
    copy.systemSnapshot = std::move(snapshot);
    return copy;
}

std::vector<FileInsight> MacStorageInsightReport::duplicateFiles() const
{
    std::vector<FileInsight> files;
    for (const auto& group : duplicateGroups) {
        const auto extras = group.extraCopies();
        files.insert(files.end(), extras.begin(), extras.end());
    }
    return files;
}

std::int64_t MacStorageInsightReport::duplicateWastedBytes() const
{
    std::int64_t sum = 0;
    for (const auto& group : duplicateGroups) {
        sum = Platform::saturatingAdd(sum, group.wastedBytes());
    }
    return sum;
}

} // namespace CleanerCore
