#include "CleanerCore/Cleaning/CleanupSelectionPreview.h"

#include "Platform/Base/CheckedMath.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace CleanerCore {

CleanupSelectionPreview::CleanupSelectionPreview(std::span<const CleanupCandidate> candidates)
    : count(std::ssize(candidates))
{
    constexpr auto categories = Platform::allCases<CleanupCategory>();
    std::array<CleanupPreviewCategorySummary, categories.size()> summaries;
    for (const auto& candidate : candidates) {
        bytes = Platform::checkedAdd(bytes, candidate.sizeBytes);
        safetyBreakdown.add(candidate.safety);
        auto& summary = summaries[static_cast<std::size_t>(candidate.category)];
        summary.category = candidate.category;
        ++summary.count;
        summary.bytes = Platform::checkedAdd(summary.bytes, candidate.sizeBytes);
    }
    std::ranges::copy_if(summaries, std::back_inserter(categorySummaries),
        [](const CleanupPreviewCategorySummary& summary) { return summary.count > 0; });
    std::ranges::sort(
        categorySummaries, [](const CleanupPreviewCategorySummary& left, const CleanupPreviewCategorySummary& right) {
            return left.bytes != right.bytes ? left.bytes > right.bytes
                                             : Platform::rawValue(left.category) < Platform::rawValue(right.category);
        });
}

bool CleanupSelectionPreview::containsNonSafeItems() const
{
    return safetyBreakdown.cautionCount > 0 || safetyBreakdown.manualReviewCount > 0;
}

std::optional<CleanupSafety> CleanupSelectionPreview::highestRisk() const
{
    if (safetyBreakdown.manualReviewCount > 0) {
        return CleanupSafety::manualReview;
    }
    if (safetyBreakdown.cautionCount > 0) {
        return CleanupSafety::caution;
    }
    return safetyBreakdown.safeCount > 0 ? std::optional(CleanupSafety::safe) : std::nullopt;
}

} // namespace CleanerCore
