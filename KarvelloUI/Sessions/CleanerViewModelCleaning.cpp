#include "CleanerCore/Cleaning/TrashRestoreService.h"
#include "KarvelloUI/Sessions/CleanerViewModelRuns.h"
#include "KarvelloUI/Sessions/RestoreCenter.h"

#include <algorithm>
#include <utility>

// Cleaning what was confirmed, putting it back, and writing down both.
namespace KarvelloUI {

using CleanerCore::CleanedItem;
using CleanerCore::CleaningMode;
using CleanerCore::CleanResult;
using CleanerCore::CleanupAuditEntry;
using CleanerCore::CleanupAuditSource;
using CleanerCore::CleanupCandidate;
using CleanerCore::ItemProgress;
using CleanerCore::RestoreResult;

namespace {

constexpr const char* kCleanFailed = "Some items could not be cleaned. Review the result details.";
constexpr const char* kCleanCancelled = "Cleaning was cancelled. Already cleaned items were removed from the list.";
constexpr const char* kRestoreFailed = "Some items could not be restored.";
constexpr const char* kRestoreCancelled = "Restore was cancelled.";

std::unordered_set<std::string> idsOf(const std::vector<CleanedItem>& items)
{
    std::unordered_set<std::string> ids;
    for (const auto& item : items) {
        ids.insert(item.candidate.id);
    }
    return ids;
}

std::shared_ptr<const CandidateIndex> without(
    const std::shared_ptr<const CandidateIndex>& index, const CleanResult& result)
{
    return result.cleanedItems.empty()
        ? index
        : std::make_shared<CandidateIndex>(index->reportWithout(idsOf(result.cleanedItems)));
}

} // namespace

void CleanerViewModel::cleanSelected(CleaningMode mode, const std::optional<CandidateSelectionSnapshot>& snapshot,
    std::optional<std::string> failureMessage, std::optional<std::string> cancellationMessage)
{
    if (isBusy()) {
        return;
    }
    std::vector<CleanupCandidate> candidates;
    if (snapshot) {
        for (const auto& id : snapshot->ids) {
            if (const auto* const candidate = m_index->candidate(id)) {
                candidates.push_back(*candidate);
            }
        }
    } else {
        candidates = m_review.selection().candidates();
    }
    if (candidates.empty()) {
        return;
    }
    setPhase(Phase::cleaning);
    setScanProgress(CleanerCore::StorageScanProgress::empty());
    m_lastRestoreResult.reset();
    noteChange(Change::results);
    setErrorMessage(std::nullopt);

    CleanRequest request{.candidates = candidates, .scanned = m_active, .mode = mode};
    m_job.start<ItemProgress>(
        [services = m_services, request = std::move(request), clean = m_cleanAction, before = m_index](
            const std::stop_token& stop, const JobProgress<ItemProgress>& progress) mutable {
            if (stop.stop_requested()) {
                return CleanRun{.result = {.wasCancelled = true}, .hasBegun = false};
            }
            auto result = performConfirmedClean(services, std::move(request), clean, stop, progress);
            result.wasCancelled = result.wasCancelled || stop.stop_requested();
            auto after = without(before, result);
            return CleanRun{.result = std::move(result), .before = before, .after = std::move(after)};
        },
        [this](ItemProgress progress) {
            setItemProgress(progress);
            publish();
        },
        [this, candidates = std::move(candidates), mode,
            messages = Messages{.failure = std::move(failureMessage).value_or(kCleanFailed),
                .cancellation = std::move(cancellationMessage).value_or(kCleanCancelled)}](
            JobOutcome<CleanRun> outcome) { applyClean(std::move(outcome), candidates, mode, messages); });
    publish();
}

void CleanerViewModel::applyClean(JobOutcome<CleanRun> outcome, std::span<const CleanupCandidate> candidates,
    CleaningMode mode, const Messages& messages)
{
    if (!outcome) {
        setErrorMessage(std::move(outcome.error().reason));
        setPhase(restingPhase());
        publish();
        return;
    }
    CleanResult& result = outcome->result;
    m_audit.record(
        CleanupAuditEntry::clean(result, mode, candidates, CleanupAuditSource::cleanupDashboard, m_services.now()));
    noteChange(Change::auditEntries);
    if (outcome->hasBegun) {
        // The report may have lost an ignored candidate meanwhile.
        auto index = outcome->before == m_index ? std::move(outcome->after) : without(m_index, result);
        applyReport(std::move(index), CandidateReview::Filters::reconcile);
    }
    if (result.wasCancelled) {
        setPhase(outcome->hasBegun ? Phase::ready : restingPhase());
        setErrorMessage(messages.cancellation);
    } else {
        setPhase(Phase::finished);
        if (!result.failedItems.empty()) {
            setErrorMessage(messages.failure);
        }
    }
    m_lastCleanResult = std::move(result);
    noteChange(Change::results);
    publish();
}

void CleanerViewModel::undoLastTrashClean(const std::set<std::string, std::less<>>& candidateIDs,
    std::optional<std::string> failureMessage, std::optional<std::string> cancellationMessage)
{
    if (candidateIDs.empty() || isBusy() || !m_lastCleanResult) {
        return;
    }
    auto items = RestoreCenter::restorableItems(*m_lastCleanResult, candidateIDs);
    if (items.empty()) {
        return;
    }
    setPhase(Phase::restoring);
    setScanProgress(CleanerCore::StorageScanProgress::empty());
    setErrorMessage(std::nullopt);

    m_job.start<ItemProgress>(
        [services = m_services, items, scanned = m_active](
            const std::stop_token& stop, const JobProgress<ItemProgress>& progress) {
            if (stop.stop_requested()) {
                return RestoreRun{
                    .result = {.restoredItems = {}, .failedItems = {}, .wasCancelled = true}, .hasBegun = false};
            }
            return RestoreRun{.result = CleanerCore::TrashRestoreService(services.fileManager, services.trash)
                                  .restore(items, scanned.locations, scanned.cleanupEligibilityPolicy, stop,
                                      scanned.homeDirectory, progress)};
        },
        [this](ItemProgress progress) {
            setItemProgress(progress);
            publish();
        },
        [this, items, cleaned = *m_lastCleanResult,
            messages = Messages{.failure = std::move(failureMessage).value_or(kRestoreFailed),
                .cancellation = std::move(cancellationMessage).value_or(kRestoreCancelled)}](
            JobOutcome<RestoreRun> outcome) { applyRestore(std::move(outcome), items, cleaned, messages); });
    publish();
}

void CleanerViewModel::applyRestore(
    JobOutcome<RestoreRun> outcome, std::span<const CleanedItem> items, CleanResult cleaned, const Messages& messages)
{
    if (!outcome) {
        setErrorMessage(std::move(outcome.error().reason));
        setPhase(restingPhase());
        publish();
        return;
    }
    const RestoreResult& result = outcome->result;
    m_audit.record(CleanupAuditEntry::restore(result, items, CleanupAuditSource::cleanupDashboard, m_services.now()));
    noteChange(Change::auditEntries);
    if (outcome->hasBegun) {
        addRestoredCandidates(result);
        std::unordered_set<std::string> restored;
        for (const auto& item : result.restoredItems) {
            restored.insert(item.cleanedItem.candidate.id);
        }
        std::erase_if(cleaned.cleanedItems, [&](const auto& item) { return restored.contains(item.candidate.id); });
        m_lastCleanResult =
            cleaned.cleanedItems.empty() ? std::nullopt : std::optional<CleanResult>(std::move(cleaned));
    }
    if (result.wasCancelled) {
        setPhase(outcome->hasBegun ? Phase::ready : restingPhase());
        setErrorMessage(messages.cancellation);
    } else {
        setPhase(Phase::finished);
        if (!result.failedItems.empty()) {
            setErrorMessage(messages.failure);
        }
    }
    m_lastRestoreResult = std::move(outcome->result);
    noteChange(Change::results);
    publish();
}

void CleanerViewModel::addRestoredCandidates(const RestoreResult& result)
{
    auto candidates = report().candidates;
    const auto before = candidates.size();
    for (const auto& item : result.restoredItems) {
        const auto& candidate = item.cleanedItem.candidate;
        if (m_index->candidate(candidate.id) == nullptr) {
            candidates.push_back(candidate);
        }
    }
    if (candidates.size() != before) {
        applyReport(std::make_shared<CandidateIndex>(
                        CleanerCore::ScanReport(report().scannedAt, std::move(candidates), report().skippedItems)),
            CandidateReview::Filters::reconcile);
    }
}

} // namespace KarvelloUI
