#include "Tests/KarvelloUI/Sessions/RandomSessionsFixture.h"

#include <algorithm>
#include <filesystem>

namespace SessionTests {

using namespace KarvelloUI;
using CleanerCore::ScanLocation;

namespace {

ScanLocation cachesIn(const TestSupport::TemporaryTree& tree)
{
    return ScanLocation(ScanLocation::Fields{.rootURL = tree.url("home/Caches/"),
        .category = CleanerCore::CleanupCategory::userCaches,
        .displayName = "Caches",
        .depth = CleanerCore::ScanDepth::immediateChildren,
        .isSelectedByDefault = true,
        .safety = CleanerCore::CleanupSafety::safe,
        .minimumModificationAge = 0,
        .includesHiddenFiles = false,
        .includesPackageDescendants = false,
        .appCacheContext = std::nullopt});
}

bool changesDisk(CleanerViewModel::Phase phase)
{
    return phase == CleanerViewModel::Phase::cleaning || phase == CleanerViewModel::Phase::restoring;
}

} // namespace

void RandomSessions::makeItems()
{
    const auto number = std::to_string(m_made.size());
    // Each pair has a size of its own, so that its two are duplicates of nothing else.
    const auto size = std::to_string(m_made.size() + 1) + "K";
    m_tree.add("home/Caches/cache" + number + "/data size=8K");
    m_tree.add("home/Caches/bare" + number + " size=4K");
    m_tree.add("home/Documents/kept" + number + " size=" + size);
    m_tree.add("home/Downloads/twin" + number + " size=" + size);
    m_tree.add("home/Downloads/alone" + number + " text=\"alone " + number + "\"");
    for (const auto* const kind : {"cache", "bare", "kept", "twin", "alone"}) {
        m_made.insert(kind + number);
    }
    m_cleanerTruth.loseTrack();
    m_insightsTruth.loseTrack();
}

template <typename Session>
void RandomSessions::follow(Session& session, Ledger& ledger, Truth& truth)
{
    using Phase = typename Session::Phase;
    QObject::connect(
        &session, &Session::phaseChanged, &session, [this, &session, &ledger, &truth, before = Phase::idle]() mutable {
            const auto left = std::exchange(before, session.phase());
            // What the user does is no result.
            if (left == Phase::scanning && session.phase() == Phase::ready && !m_isCalling) {
                ++ledger.scansApplied;
                truth.applyScan();
            }
        });
}

void RandomSessions::makeCleaner()
{
    m_cleaner = std::make_unique<Cleaner>(m_services, m_log, m_ignoreStore,
        [] { return std::vector<CleanerCore::AppCacheRunningApplicationIdentity>(); });
    follow(*m_cleaner, m_cleanerLedger, m_cleanerTruth);
    m_cleanerTruth.loseTrack();
}

void RandomSessions::makeInsights()
{
    m_insights = std::make_unique<Insights>(m_services,
        Insights::Setup{.homeDirectory = m_tree.url("home/"),
            .scannerConfiguration = CleanerCore::InsightConfiguration({
                .minimumLargeFileBytes = 1 << 20,
                .minimumDuplicateFileBytes = 1,
                .minimumReviewFileAge = 0,
                .maximumVisitedItemsPerRoot = 10'000,
                .maximumResultCount = 1000,
                .maximumRecentReviewSkippedItems = 0,
                .maximumDuplicateHashFiles = 1000,
                .maximumDuplicateFullHashBytesPerFile = 1 << 20,
                .maximumDuplicateHashBytes = 1 << 30,
            })},
        m_log, m_history);
    follow(*m_insights, m_insightsLedger, m_insightsTruth);
    m_insightsTruth.loseTrack();
}

void RandomSessions::step()
{
    m_isCalling = true;
    if (below(2) == 0) {
        stepOfCleaner();
    } else {
        stepOfInsights();
    }
    m_isCalling = false;
    // The user waits for nothing, for a moment, or until it is done.
    switch (below(3)) {
    case 0:
        break;
    case 1:
        m_loop.handleEvents();
        break;
    default:
        comeToRest();
        if (below(4) == 0) {
            makeItems();
        }
    }
}

/// What runs will not be heard of again.
void RandomSessions::dropOfCleaner()
{
    if (m_cleaner->phase() == Cleaner::Phase::scanning) {
        ++m_cleanerLedger.scansDropped;
    } else if (changesDisk(m_cleaner->phase())) {
        ++m_cleanerLedger.changesDropped;
        m_cleanerTruth.hasLeftovers = true;
        m_mayHaveUnlogged = true;
        m_cleanerTruth.loseTrack();
    }
}

void RandomSessions::dropOfInsights()
{
    if (m_insights->phase() == Insights::Phase::scanning) {
        ++m_insightsLedger.scansDropped;
    } else if (m_insights->phase() == Insights::Phase::cleaning) {
        ++m_insightsLedger.changesDropped;
        m_insightsTruth.hasLeftovers = true;
        m_mayHaveUnlogged = true;
        m_insightsTruth.loseTrack();
    }
}

void RandomSessions::scanCaches()
{
    dropOfCleaner();
    ++m_cleanerLedger.scansBegun;
    m_cleanerTruth.beginScan();
    m_cleaner->scan({cachesIn(m_tree)});
}

void RandomSessions::scanInsights()
{
    dropOfInsights();
    ++m_insightsLedger.scansBegun;
    m_insightsTruth.beginScan();
    m_insights->scan(std::nullopt);
}

void RandomSessions::stepOfCleaner()
{
    const auto& candidates = m_cleaner->report().candidates;
    const bool wasBusy = m_cleaner->isBusy();
    switch (below(17)) {
    case 0:
    case 1:
    case 2:
        scanCaches();
        break;
    case 3:
        if (m_cleaner->phase() == Cleaner::Phase::scanning) {
            ++m_cleanerLedger.scansDropped;
        }
        m_cleaner->cancelCurrentOperation();
        break;
    case 4:
    case 5:
    case 6:
        m_cleaner->cleanSelected(CleanerCore::CleaningMode::moveToTrash);
        break;
    case 7:
    case 8:
    case 14:
    case 15:
    case 16:
        if (m_cleaner->lastCleanResult()) {
            std::set<std::string, std::less<>> ids;
            for (const auto& item : m_cleaner->lastCleanResult()->cleanedItems) {
                if (below(3) > 0) {
                    ids.insert(item.candidate.id);
                }
            }
            m_cleaner->undoLastTrashClean(ids);
        }
        break;
    case 9:
    case 10:
        for (const auto& candidate : candidates) {
            m_cleaner->setSelected(candidate, below(2) == 0);
        }
        break;
    case 11:
        if (!candidates.empty()) {
            // One that is on its way to the Trash counts as ignored, and stands in no report.
            if (changesDisk(m_cleaner->phase())) {
                m_cleanerTruth.loseTrack();
            }
            m_cleaner->ignoreCandidate(
                candidates[static_cast<std::size_t>(below(static_cast<int>(candidates.size())))]);
        }
        break;
    case 12:
        // Those that come back are in no report until the next scan.
        m_cleaner->clearIgnoredItems();
        m_cleanerTruth.isTrue = false;
        break;
    default:
        dropOfCleaner();
        if (below(2) == 0) {
            m_cleaner->clearScanResults();
            m_cleanerTruth.loseTrack();
        } else {
            m_cleaner.reset();
            makeCleaner();
        }
        return;
    }
    if (!wasBusy && changesDisk(m_cleaner->phase())) {
        ++m_cleanerLedger.changesBegun;
        if (below(4) == 0) {
            // In the middle of it, or before, or right after.
            scanCaches();
        }
    }
}

void RandomSessions::stepOfInsights()
{
    const auto section = below(2) == 0 ? MacInsightFileSection::downloads : MacInsightFileSection::duplicates;
    const bool wasBusy = m_insights->isBusy();
    switch (below(12)) {
    case 0:
    case 1:
    case 2:
        scanInsights();
        break;
    case 3:
        if (m_insights->phase() == Insights::Phase::scanning) {
            ++m_insightsLedger.scansDropped;
        }
        m_insights->cancelCurrentOperation();
        break;
    case 4:
    case 5:
    case 6:
        m_insights->cleanSelected(section);
        break;
    case 7:
        for (const auto* const file : m_insights->files(section)) {
            m_insights->setSelected(*file, below(3) == 0);
        }
        break;
    case 8:
        if (!m_insights->duplicateGroupsForReview().empty()) {
            m_insights->selectDuplicateExtras(m_insights->duplicateGroupsForReview().front());
        }
        break;
    case 9:
        m_insights->clearSelection(section);
        break;
    case 10:
        m_insights->refreshSystemSnapshot();
        m_insights->flushSystemMetricHistory();
        break;
    default:
        dropOfInsights();
        if (below(2) == 0) {
            m_insights->clearScanResults();
            m_insightsTruth.loseTrack();
        } else {
            m_insights.reset();
            makeInsights();
        }
        return;
    }
    if (!wasBusy && m_insights->phase() == Insights::Phase::cleaning) {
        ++m_insightsLedger.changesBegun;
        if (below(4) == 0) {
            scanInsights();
        }
    }
}

void RandomSessions::comeToRest()
{
    const auto isAtRest = [this] { return m_threads.isIdle() && !m_cleaner->isBusy() && !m_insights->isBusy(); };
    do {
        ASSERT_TRUE(m_loop.runUntil(isAtRest));
        m_loop.handleEvents();
    } while (!isAtRest());
    m_cleanerTruth.hasLeftovers = false;
    m_insightsTruth.hasLeftovers = false;
    expectDiskSessionAndLogToAgree();
}

} // namespace SessionTests
