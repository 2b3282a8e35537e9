#include "KarvelloUI/Advisors/StorageReviewFigures.h"

#include "KarvelloUI/Advisors/StoragePermissionAdvisor.h"
#include "Platform/Base/CheckedMath.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <span>

namespace KarvelloUI {

namespace {

std::int64_t summedBytes(std::span<const CleanerCore::FileInsight> files)
{
    std::int64_t sum = 0;
    for (const auto& file : files) {
        sum = Platform::checkedAdd(sum, file.sizeBytes);
    }
    return sum;
}

std::int64_t blockedCount(std::span<const CleanerCore::SkippedItem> items)
{
    return std::ranges::count_if(
        items, StoragePermissionAdvisor::isPermissionRelated, &CleanerCore::SkippedItem::reason);
}

std::optional<StorageReviewTarget> largestOf(const std::array<StorageReviewTarget, 3>& targets)
{
    const auto largest = std::ranges::max_element(targets, {}, &StorageReviewTarget::bytes);
    return largest->bytes >= 1 ? std::optional(*largest) : std::nullopt;
}

} // namespace

StorageReviewFigures StorageReviewFigures::of(
    const CleanerCore::ScanReport& cleanupReport, const CleanerCore::MacStorageInsightReport& insightReport)
{
    std::int64_t extraCount = 0;
    for (const auto& group : insightReport.duplicateGroups) {
        extraCount += std::ssize(group.extraCopies());
    }
    return {
        .largeFileBytes = summedBytes(insightReport.largeFiles),
        .largeFileCount = std::ssize(insightReport.largeFiles),
        .downloadBytes = summedBytes(insightReport.downloadFiles),
        .downloadCount = std::ssize(insightReport.downloadFiles),
        .duplicateWastedBytes = insightReport.duplicateWastedBytes(),
        .duplicateExtraCount = extraCount,
        .duplicateGroupCount = std::ssize(insightReport.duplicateGroups),
        .reclaimableBytes = cleanupReport.reclaimableBytes(),
        .candidateCount = std::ssize(cleanupReport.candidates),
        .blockedItemCount = blockedCount(cleanupReport.skippedItems) + blockedCount(insightReport.skippedItems),
    };
}

std::optional<StorageReviewTarget> StorageReviewFigures::largestReviewTarget() const
{
    return largestOf({{
        {.section = MacDashboardSection::largeFiles, .bytes = largeFileBytes, .itemCount = largeFileCount},
        {.section = MacDashboardSection::downloads, .bytes = downloadBytes, .itemCount = downloadCount},
        {.section = MacDashboardSection::cleanup, .bytes = reclaimableBytes, .itemCount = candidateCount},
    }});
}

std::optional<StorageReviewTarget> StorageReviewFigures::largestInsightOpportunity() const
{
    return largestOf({{
        {.section = MacDashboardSection::largeFiles, .bytes = largeFileBytes, .itemCount = largeFileCount},
        {.section = MacDashboardSection::downloads, .bytes = downloadBytes, .itemCount = downloadCount},
        {.section = MacDashboardSection::duplicates, .bytes = duplicateWastedBytes, .itemCount = duplicateExtraCount},
    }});
}

} // namespace KarvelloUI
