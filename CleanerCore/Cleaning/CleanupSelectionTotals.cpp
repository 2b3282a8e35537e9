#include "CleanerCore/Cleaning/CleanupSelectionTotals.h"

#include "Platform/Base/CheckedMath.h"

#include <algorithm>
#include <cstddef>

namespace CleanerCore {

void CleanupSelectionTotals::add(const CleanupCandidate& candidate)
{
    m_safetyBreakdown.add(candidate.safety);
    auto& changed = summary(candidate.category);
    ++changed.count;
    changed.bytes = Platform::checkedAdd(changed.bytes, candidate.sizeBytes);
}

void CleanupSelectionTotals::remove(const CleanupCandidate& candidate)
{
    m_safetyBreakdown.remove(candidate.safety);
    auto& changed = summary(candidate.category);
    --changed.count;
    changed.bytes -= candidate.sizeBytes;
}

CleanupSelectionPreview CleanupSelectionTotals::preview() const
{
    CleanupSelectionPreview preview;
    preview.safetyBreakdown = m_safetyBreakdown;
    for (const auto& summary : m_summaries) {
        if (summary.count > 0) {
            preview.count += summary.count;
            preview.bytes = Platform::checkedAdd(preview.bytes, summary.bytes);
            preview.categorySummaries.push_back(summary);
        }
    }
    std::ranges::sort(preview.categorySummaries,
        [](const CleanupPreviewCategorySummary& left, const CleanupPreviewCategorySummary& right) {
            return left.bytes != right.bytes ? left.bytes > right.bytes
                                             : Platform::rawValue(left.category) < Platform::rawValue(right.category);
        });
    return preview;
}

CleanupPreviewCategorySummary& CleanupSelectionTotals::summary(CleanupCategory category)
{
    auto& found = m_summaries[static_cast<std::size_t>(category)];
    found.category = category;
    return found;
}

} // namespace CleanerCore
