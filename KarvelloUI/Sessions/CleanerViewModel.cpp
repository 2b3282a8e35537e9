#include "KarvelloUI/Sessions/CleanerViewModel.h"

#include "CleanerCore/Safety/RealUserHome.h"
#include "CleanerCore/Scan/StorageProfiles.h"
#include "KarvelloUI/Sessions/CleanerViewModelRuns.h"
#include "KarvelloUI/Sessions/RestoreCenter.h"
#include "KarvelloUI/Sessions/ScanProgressCoalescer.h"
#include "KarvelloUI/Sessions/SessionChanges.h"
#include "KarvelloUI/Stores/CustomScanFolderResolver.h"
#include "Platform/Services/UserDirectories.h"

#include <array>
#include <iterator>
#include <utility>

namespace KarvelloUI {

using CleanerCore::ScanReport;
using CleanerCore::StorageScanProgress;

CleanerViewModel::CleanerViewModel(SessionServices services, CleanerCore::CleanupAuditStore auditStore,
    CleanupIgnoreStore& ignoreStore, AppCacheRunningAppProvider appCacheRunningAppProvider, CleanAction cleanAction,
    QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
    , m_runningApplications(std::move(appCacheRunningAppProvider))
    , m_cleanAction(cleanAction ? std::move(cleanAction) : cleaningServiceAction(m_services))
    , m_errorMessage(ignoreStore.lastErrorMessage())
    , m_ignored(ignoreStore)
    , m_ignoredItems(ignoreStore.activeItems(m_services.now()))
    , m_active(ActiveScan::none(m_services.fileManager))
    , m_audit(std::move(auditStore), m_services.executor,
          [this] {
              noteChange(Change::auditEntries);
              publish();
          })
    , m_job(m_services.executor)
{
    // Queued: the store tells of its errors in the middle of its own work.
    connect(
        &ignoreStore, &CleanupIgnoreStore::lastErrorMessageChanged, this,
        [this] {
            applyIgnoreStoreError();
            publish();
        },
        Qt::QueuedConnection);
    m_changes = {};
}

bool CleanerViewModel::isBusy() const
{
    return m_phase == Phase::scanning || isMoving();
}

QString CleanerViewModel::errorText() const
{
    return QString::fromStdString(m_errorMessage.value_or(""));
}

void CleanerViewModel::dismissError()
{
    // What the store still holds would come back with the next look at it.
    if (m_errorMessage == m_ignored.store().lastErrorMessage()) {
        m_ignored.store().clearError();
    }
    setErrorMessage(std::nullopt);
    publish();
}

void CleanerViewModel::scanMacDefaults()
{
    scanMac(CleanerCore::CleanupScanMode::standard, CleanerCore::cleanerCoreRealUserHomeDirectory(), {}, std::nullopt,
        false);
}

void CleanerViewModel::scanMac(CleanerCore::CleanupScanMode mode, const Platform::FileURL& homeDirectory,
    std::vector<CustomScanFolder> customFolders, std::optional<ResolvedHomeAccessBookmark> homeAccessBookmark,
    bool includesDirectDistribution)
{
    const auto home = homeAccessBookmark ? homeAccessBookmark->effectiveHomeDirectory : homeDirectory;
    scan([services = m_services, mode, home, customFolders = std::move(customFolders),
             grant = std::move(homeAccessBookmark), includesDirectDistribution](const std::stop_token& stop) {
        auto folders = CustomScanFolderResolver::resolve(customFolders, services.fileManager, services.bookmarks);
        ScanLocationResolution resolution{
            .locations = CleanerCore::StorageProfiles::locations(
                mode, home, services.fileManager, services.environment, includesDirectDistribution, stop),
            .skippedItems = std::move(folders.skippedItems),
            .securityScopedFolders = std::move(folders.resolvedFolders),
            .homeAccessBookmark = grant,
            .homeDirectory = home};
        std::ranges::move(folders.locations, std::back_inserter(resolution.locations));
        return resolution;
    });
}

void CleanerViewModel::scanAppSandbox()
{
    scan([services = m_services](const std::stop_token&) {
        return ScanLocationResolution{.locations = CleanerCore::StorageProfiles::appSandboxLocations(
                                          Platform::cacheDirectoryForCurrentUser(services.environment),
                                          Platform::temporaryDirectory(services.environment))};
    });
}

void CleanerViewModel::scan(std::vector<CleanerCore::ScanLocation> locations)
{
    scan([locations = std::move(locations)](
             const std::stop_token&) { return ScanLocationResolution{.locations = locations}; });
}

void CleanerViewModel::scan(ScanLocationProvider resolveLocations)
{
    setPhase(Phase::scanning);
    setScanProgress(StorageScanProgress::empty());
    setErrorMessage(std::nullopt);
    dropResults();
    m_job.start<StorageScanProgress>(
        [services = m_services, resolveLocations = std::move(resolveLocations),
            runningApplications = m_runningApplications, ignored = m_ignored.activeIDs(m_services.now())](
            const std::stop_token& stop, const JobProgress<StorageScanProgress>& progress) {
            ScanProgressCoalescer coalescer({.yield = progress}, ScanProgressTiming::system(services.executor));
            // A scan that was cancelled shows nothing more, at once.
            const std::stop_callback silence(
                stop, [&coalescer] { coalescer.finish(ScanProgressCoalescer::Pending::drop); });
            auto result = performCleanupScan(
                services, resolveLocations, runningApplications,
                [&coalescer](const StorageScanProgress& update) { coalescer.submit(update); }, stop);
            coalescer.finish(ScanProgressCoalescer::Pending::publish);
            return PreparedScan(std::move(result), ignored);
        },
        [this](StorageScanProgress progress) {
            setScanProgress(std::move(progress));
            publish();
        },
        [this](JobOutcome<PreparedScan> outcome) { applyScan(std::move(outcome)); });
    publish();
}

void CleanerViewModel::applyScan(JobOutcome<PreparedScan> outcome)
{
    setScanProgress(StorageScanProgress::empty());
    if (!outcome) {
        setErrorMessage(std::move(outcome.error().reason));
        setPhase(restingPhase());
        publish();
        return;
    }
    m_active = std::move(outcome->scanned);
    const auto hidden = m_ignored.hide(outcome->index->report(), m_services.now());
    takeUpIgnoreStore();
    // Rules may have been made or have ended while the scan ran.
    auto index = hidden == outcome->hidden ? std::move(outcome->visible)
                                           : std::make_shared<CandidateIndex>(outcome->index->reportWithout(hidden));
    applyReport(std::move(index), CandidateReview::Filters::reset);
    m_review.selection().selectDefaults();
    setPhase(Phase::ready);
    publish();
}

void CleanerViewModel::applyReport(std::shared_ptr<const CandidateIndex> index, CandidateReview::Filters filters)
{
    m_index = std::move(index);
    m_review.apply(m_index, filters);
    noteChange(Change::report);
    noteChange(Change::filters);
    noteChange(Change::selection);
}

void CleanerViewModel::cancelCurrentOperation()
{
    if (m_phase == Phase::scanning) {
        m_job.cancel();
        setPhase(restingPhase());
        setScanProgress(StorageScanProgress::empty());
    } else {
        m_job.requestStop();
    }
    publish();
}

void CleanerViewModel::clearScanResults()
{
    m_job.cancel();
    applyReport(std::make_shared<CandidateIndex>(ScanReport::empty()), CandidateReview::Filters::reconcile);
    setPhase(Phase::idle);
    setScanProgress(StorageScanProgress::empty());
    setErrorMessage(std::nullopt);
    dropResults();
    m_ignored.forgetReport();
    noteChange(Change::ignoredItems);
    m_active = ActiveScan::none(m_services.fileManager);
    publish();
}

CleanerViewModel::Phase CleanerViewModel::restingPhase() const
{
    return report().candidates.empty() ? Phase::idle : Phase::ready;
}

bool CleanerViewModel::canUndoLastTrashClean() const
{
    return !isBusy() && RestoreCenter::hasRestorableItems(m_lastCleanResult);
}

CleanerCore::CleanupRestoreCenterSnapshot CleanerViewModel::restoreCenterSnapshot() const
{
    return RestoreCenter::snapshot(m_lastCleanResult, auditEntries());
}

void CleanerViewModel::setPhase(Phase phase)
{
    if (phase != m_phase) {
        m_phase = phase;
        noteChange(Change::phase);
        // Whether a clean can be undone depends on it.
        noteChange(Change::results);
    }
    setItemProgress({});
}

void CleanerViewModel::setScanProgress(StorageScanProgress progress)
{
    if (progress != m_scanProgress) {
        m_scanProgress = std::move(progress);
        noteChange(Change::progress);
    }
}

void CleanerViewModel::setItemProgress(CleanerCore::ItemProgress progress)
{
    m_itemProgress = progress;
    noteChange(Change::progress);
}

void CleanerViewModel::setErrorMessage(std::optional<std::string> message)
{
    if (message != m_errorMessage) {
        m_errorMessage = std::move(message);
        noteChange(Change::errorMessage);
    }
}

void CleanerViewModel::dropResults()
{
    m_lastCleanResult.reset();
    m_lastRestoreResult.reset();
    noteChange(Change::results);
}

void CleanerViewModel::publish()
{
    using Signal = void (CleanerViewModel::*)();
    static constexpr std::array<std::pair<Change, Signal>, 9> signalOf{{
        {Change::report, &CleanerViewModel::reportChanged},
        {Change::filters, &CleanerViewModel::filtersChanged},
        {Change::selection, &CleanerViewModel::selectionChanged},
        {Change::progress, &CleanerViewModel::progressChanged},
        {Change::results, &CleanerViewModel::resultsChanged},
        {Change::auditEntries, &CleanerViewModel::auditEntriesChanged},
        {Change::ignoredItems, &CleanerViewModel::ignoredItemsChanged},
        {Change::errorMessage, &CleanerViewModel::errorMessageChanged},
        {Change::phase, &CleanerViewModel::phaseChanged},
    }};
    announceChanges(*this, std::exchange(m_changes, {}), signalOf);
}

} // namespace KarvelloUI
