#include "CleanerCore/Insights/ReviewLists.h"

#include "CleanerCore/Insights/BoundedTopN.h"
#include "CleanerCore/Insights/ReviewOrder.h"

#include <limits>
#include <string>
#include <utility>

namespace CleanerCore {

namespace {

struct PrefersRecord {
    bool operator()(const FileRecord* record, const FileRecord* other) const
    {
        return prefersReviewRecord(*record, *other);
    }
};

} // namespace

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
    return pick(records, m_configuration.minimumLargeFileBytes, FileInsightKind::largeFile, "Large file");
}

std::vector<FileInsight> ReviewLists::downloads(std::span<const FileRecord> records)
{
    constexpr auto anySize = std::numeric_limits<std::int64_t>::min();
    return pick(records, anySize, FileInsightKind::download, "Downloads item");
}

std::vector<FileInsight> ReviewLists::pick(
    std::span<const FileRecord> records, std::int64_t minimumBytes, FileInsightKind kind, std::string_view detail)
{
    BoundedTopN<const FileRecord*, PrefersRecord> best(m_configuration.maximumResultCount);
    for (const auto& record : records) {
        if (record.isDirectory || record.allocatedSizeBytes < minimumBytes) {
            continue;
        }
        if (isTooNew(record)) {
            noteTooNew(record);
        } else {
            best.insert(&record);
        }
    }
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
