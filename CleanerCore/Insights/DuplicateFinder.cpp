#include "CleanerCore/Insights/DuplicateFinder.h"

#include "CleanerCore/Insights/DuplicateSearch.h"

#include <algorithm>
#include <utility>

namespace CleanerCore {

DuplicateFinder::DuplicateFinder(const InsightConfiguration& configuration, const Platform::FileManager& fileManager,
    unsigned jobs, ProgressHandler onProgress)
    : m_configuration(configuration)
    , m_fileManager(fileManager)
    , m_jobs(std::max(jobs, 1U))
    , m_onProgress(std::move(onProgress))
{
}

DuplicateSearchResult DuplicateFinder::find(
    std::span<const FileRecord> records, std::vector<SkippedItem>& skipped, const std::stop_token& stop) const
{
    return DuplicateSearch(m_configuration, m_fileManager, m_jobs, records, stop).run(skipped, m_onProgress);
}

} // namespace CleanerCore
