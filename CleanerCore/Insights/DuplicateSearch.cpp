#include "CleanerCore/Insights/DuplicateSearch.h"

#include "CleanerCore/Insights/ContentComparison.h"
#include "CleanerCore/Insights/ContentFingerprint.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace CleanerCore {

namespace {

// Enough that no thread waits for the next size, and little enough that not much is read in vain at an early end.
constexpr std::size_t kFilesAheadPerJob = 128;
// Bounds the memory where one size keeps a thread busy and smaller ones are done meanwhile.
constexpr std::size_t kMaximumFilesInWork = 16'384;
constexpr std::size_t kFingerprintsPerTask = 8;
// A quarter of what a process may usually open.
constexpr std::size_t kMaximumHeldFiles = 256;
constexpr std::chrono::milliseconds kProgressInterval{100};

std::size_t countFiles(const auto& sizes, auto isCounted)
{
    std::size_t count = 0;
    for (const auto& size : sizes) {
        count += isCounted(*size) ? size->search.files().size() : 0;
    }
    return count;
}

} // namespace

DuplicateSearch::DuplicateSearch(const InsightConfiguration& configuration, const Platform::FileManager& fileManager,
    unsigned jobs, std::span<const FileRecord> records, std::stop_token stop)
    : m_configuration(configuration)
    , m_reading{.fileManager = fileManager, .stop = std::move(stop)}
    , m_maximumFilesAhead(kFilesAheadPerJob * jobs)
    , m_maximumHeldFiles(kMaximumHeldFiles / jobs)
    , m_sizes(records, configuration)
    , m_budget(configuration)
    , m_pool(jobs, std::max(ContentComparison::kBufferBytes, fingerprintBufferBytes(kFingerprintsPerTask)))
{
}

DuplicateSearchResult DuplicateSearch::run(
    std::vector<SkippedItem>& skipped, const DuplicateFinder::ProgressHandler& onProgress)
{
    while (true) {
        admitSizes();
        if (m_inWork.empty()) {
            break;
        }
        m_pool.awaitAnnouncement(kProgressInterval);
        reportProgress(onProgress);
        advanceAll();
        while (
            !m_inWork.empty() && m_inWork.front()->phase == Phase::gathering && m_inWork.front()->pendingTasks == 0) {
            finishFirst(skipped);
        }
    }
    // What was read since the last report may have been all that there was to read.
    reportProgress(onProgress);
    keepMostWasteful();
    return std::move(m_result);
}

void DuplicateSearch::admitSizes()
{
    auto filesInWork = countFiles(m_inWork, [](const Size&) { return true; });
    auto filesAhead = countFiles(m_inWork, [](const Size& size) { return size.phase == Phase::fingerprinting; });
    while (!m_isEnding && !m_reading.stop.stop_requested() && filesAhead < m_maximumFilesAhead
        && filesInWork < kMaximumFilesInWork) {
        const auto files = m_sizes.next();
        if (!files) {
            m_isEnding = true;
            return;
        }
        const auto size = std::make_shared<Size>(*files);
        m_inWork.push_back(size);
        filesInWork += files->records.size();
        filesAhead += files->records.size();
        std::vector<SizeTask> tasks;
        const auto all = size->search.files();
        for (std::size_t begin = 0; begin < all.size(); begin += kFingerprintsPerTask) {
            const auto some = all.subspan(begin, std::min(kFingerprintsPerTask, all.size() - begin));
            tasks.emplace_back([this, some](const Size& owner, std::span<std::byte> buffer) {
                if (!owner.isAbandoned) {
                    takeFingerprints(some, m_reading, buffer);
                }
            });
        }
        submit(size, WorkerPool::Urgency::later, std::move(tasks));
    }
}

void DuplicateSearch::advanceAll()
{
    for (std::size_t index = 0; index < m_inWork.size(); ++index) {
        const auto& size = m_inWork[index];
        // What is hashed depends on what was hashed of larger sizes.
        if (size->phase == Phase::fingerprinting) {
            if (size->pendingTasks != 0) {
                return;
            }
            size->phase = Phase::hashing;
            beginHashing(size);
            if (size->search.isLast()) {
                abandonFrom(index + 1);
            }
        }
        if (size->phase == Phase::hashing && size->pendingTasks == 0) {
            size->phase = Phase::gathering;
            submit(size, WorkerPool::Urgency::next, {[this](Size& owner, std::span<std::byte>) {
                owner.result = owner.search.result(m_reading.fileManager);
            }});
        }
    }
}

void DuplicateSearch::beginHashing(const std::shared_ptr<Size>& size)
{
    if (m_reading.stop.stop_requested()) {
        return;
    }
    size->search.chooseFilesToHash(m_budget);
    std::vector<SizeTask> tasks;
    for (auto& files : size->search.setsToCompare()) {
        tasks.emplace_back([this, files = std::move(files)](const Size&, std::span<std::byte> buffer) {
            ContentComparison(m_reading, buffer, m_maximumHeldFiles).compare(files);
        });
    }
    submit(size, WorkerPool::Urgency::next, std::move(tasks));
}

void DuplicateSearch::submit(
    const std::shared_ptr<Size>& size, WorkerPool::Urgency urgency, std::vector<SizeTask> tasks)
{
    size->pendingTasks = tasks.size();
    for (auto& task : tasks) {
        m_pool.submit(urgency, [this, size, task = std::move(task)](std::span<std::byte> buffer) {
            task(*size, buffer);
            if (--size->pendingTasks == 0) {
                m_pool.announceIfShortOfWork();
            }
        });
    }
}

void DuplicateSearch::abandonFrom(std::size_t index)
{
    m_isEnding = true;
    for (auto position = index; position < m_inWork.size(); ++position) {
        m_inWork[position]->isAbandoned = true;
    }
    m_inWork.resize(index);
}

void DuplicateSearch::finishFirst(std::vector<SkippedItem>& skipped)
{
    const auto size = std::move(m_inWork.front());
    m_inWork.pop_front();
    auto& result = size->result;
    std::ranges::move(result.skipped, std::back_inserter(skipped));
    std::ranges::move(result.groups, std::back_inserter(m_result.groups));
    m_result.isTruncated = m_result.isTruncated || result.isTruncated;
    if (m_result.groups.size() >= 2 * static_cast<std::size_t>(m_configuration.maximumResultCount)) {
        keepMostWasteful();
    }
    if (result.isStopped) {
        abandonFrom(0);
    }
}

/// Keeps as many groups as a result may have. Doing so early changes nothing: what is not among the first of some is not
/// among the first of more.
void DuplicateSearch::keepMostWasteful()
{
    auto& groups = m_result.groups;
    std::ranges::stable_sort(groups, std::ranges::greater(), &DuplicateFileGroup::wastedBytes);
    if (groups.size() > static_cast<std::size_t>(m_configuration.maximumResultCount)) {
        groups.resize(static_cast<std::size_t>(m_configuration.maximumResultCount));
    }
}

void DuplicateSearch::reportProgress(const DuplicateFinder::ProgressHandler& onProgress)
{
    const std::int64_t bytes = m_reading.bytesRead;
    if (onProgress && bytes != m_reportedBytes) {
        m_reportedBytes = bytes;
        onProgress(bytes);
    }
}

} // namespace CleanerCore
