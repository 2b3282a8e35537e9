#include "CleanerCore/Insights/ReviewLists.h"

#include "CleanerCore/Safety/ComparisonForm.h"

#include <string>
#include <utility>

namespace CleanerCore {

ReviewLists::ReviewLists(const InsightConfiguration& configuration, Platform::Date scannedAt, const InsightMaker& maker,
    std::vector<SkippedItem>& skipped)
    : m_configuration(configuration)
    , m_cutoff(scannedAt.addingSeconds(-configuration.minimumReviewFileAge))
    , m_maker(maker)
    , m_skipped(skipped)
{
}

std::vector<FileInsight> ReviewLists::largeFiles(std::span<const FileRecord> records)
{
    Best best(m_configuration.maximumResultCount);
    for (const auto& record : records) {
        if (!record.isDirectory && record.allocatedSizeBytes >= m_configuration.minimumLargeFileBytes) {
            offer(record, best);
        }
    }
    return insights(std::move(best), FileInsightKind::largeFile, "Large file");
}

std::vector<FileInsight> ReviewLists::downloads(
    std::span<const FileRecord> records, const Platform::FileURL& downloadsFolder)
{
    Best best(m_configuration.maximumResultCount);
    for (const auto& record : records) {
        if (!record.isDirectory && equalsOrIsInside(*record.folderPath, downloadsFolder.path())) {
            offer(record, best);
        }
    }
    return insights(std::move(best), FileInsightKind::download, "Downloads item");
}

void ReviewLists::offer(const FileRecord& record, Best& best)
{
    if (isTooNew(record)) {
        noteTooNew(record);
    } else {
        best.insert(&record);
    }
}

std::vector<FileInsight> ReviewLists::insights(Best best, FileInsightKind kind, std::string_view detail) const
{
    std::vector<FileInsight> insights;
    for (const auto* const record : std::move(best).takeSorted()) {
        insights.push_back(m_maker.insight(*record, kind, std::string(detail)));
    }
    return insights;
}

bool ReviewLists::isTooNew(const FileRecord& record) const
{
    return m_configuration.minimumReviewFileAge > 0 && record.lastModified && *record.lastModified > m_cutoff;
}

void ReviewLists::noteTooNew(const FileRecord& record)
{
    // Once one item too many was met, nothing that follows changes the outcome.
    if (m_isTruncated) {
        return;
    }
    auto url = record.url();
    if (m_tooNewPaths.contains(url.path())) {
        return;
    }
    if (std::cmp_greater_equal(m_tooNewPaths.size(), m_configuration.maximumRecentReviewSkippedItems)) {
        m_isTruncated = true;
        return;
    }
    m_tooNewPaths.insert(url.path());
    m_skipped.push_back({std::move(url), std::string(kRecentlyModified)});
}

} // namespace CleanerCore
