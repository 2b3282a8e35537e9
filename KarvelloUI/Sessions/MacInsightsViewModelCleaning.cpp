#include "CleanerCore/Insights/RemovedFiles.h"
#include "KarvelloUI/Sessions/MacInsightsViewModelRuns.h"

#include <utility>

// Cleaning the selected files of one section, and writing it down.
namespace KarvelloUI {

using CleanerCore::CleanupAuditEntry;
using CleanerCore::CleanupAuditSource;
using CleanerCore::CleanupCategory;
using CleanerCore::FileInsight;

namespace {

CleanerCore::MacStorageInsightReport without(
    CleanerCore::MacStorageInsightReport report, const CleanerCore::CleanResult& result)
{
    InsightIndex::Paths paths;
    for (const auto& item : result.cleanedItems) {
        paths.insert(item.candidate.url.path());
    }
    return CleanerCore::removingFiles(std::move(report), paths);
}

} // namespace

void MacInsightsViewModel::cleanSelected(MacInsightFileSection section, std::optional<std::string> failureMessage,
    std::optional<std::string> cancellationMessage)
{
    if (isBusy()) {
        return;
    }
    std::vector<FileInsight> files;
    for (const auto* const file : selectedFiles(section)) {
        files.push_back(*file);
    }
    if (files.empty()) {
        return;
    }
    const auto phaseBefore = m_phase;
    setPhase(Phase::cleaning);
    setErrorMessage(std::nullopt);
    m_job.start<Eligibility>(
        [services = m_services, files = std::move(files), index = m_review.index(), scanned = m_active,
            mode = m_cleaningMode,
            selectedIDs = selectedIDs()](const std::stop_token& stop, const JobProgress<Eligibility>& progress) {
            CleanRun clean;
            Eligibility eligibility;
            const auto cleanable = index->cleanablePaths(files, scanned, services.fileManager);
            for (const auto& file : files) {
                if (cleanable.contains(file.url.path())) {
                    clean.candidates.push_back(file.cleanupCandidate(CleanupCategory::customFolder));
                } else {
                    eligibility.lostIDs.push_back(file.id);
                }
            }
            eligibility.leavesSome = !clean.candidates.empty();
            progress(std::move(eligibility));
            if (clean.candidates.empty()) {
                return clean;
            }
            CleanRequest request{.candidates = clean.candidates, .scanned = scanned, .mode = mode};
            clean.run = performConfirmedClean(services, std::move(request), cleaningServiceAction(services), stop);
            if (clean.run.hasBegun) {
                auto rest = std::make_shared<const InsightIndex>(
                    without(index->report(), clean.run.result), scanned, services.fileManager);
                clean.review.emplace(std::move(rest), selectedIDs);
            }
            return clean;
        },
        [this](const Eligibility& eligibility) { applyEligibility(eligibility); },
        [this, phaseBefore, messages = RunMessages::ofClean(std::move(failureMessage), std::move(cancellationMessage))](
            JobOutcome<CleanRun> outcome) { applyClean(std::move(outcome), phaseBefore, messages); });
    publish();
}

void MacInsightsViewModel::applyEligibility(const Eligibility& eligibility)
{
    if (!eligibility.lostIDs.empty()) {
        setErrorMessage(std::string(RunMessages::kNoLongerEligible));
        noteSelection(m_review.deselect(eligibility.lostIDs));
    }
    if (eligibility.leavesSome) {
        setLastCleanResult(std::nullopt);
    }
    publish();
}

void MacInsightsViewModel::applyClean(JobOutcome<CleanRun> outcome, Phase phaseBefore, const RunMessages& messages)
{
    if (!outcome) {
        setErrorMessage(std::move(outcome.error().reason));
        setPhase(restingPhase());
        publish();
        return;
    }
    if (outcome->candidates.empty()) {
        setPhase(phaseBefore);
        publish();
        return;
    }
    auto& [result, hasBegun] = outcome->run;
    result.wasCancelled = result.wasCancelled || m_job.wasAskedToStop();
    m_audit.record(CleanupAuditEntry::clean(
        result, m_cleaningMode, outcome->candidates, CleanupAuditSource::macInsights, m_services.now()));
    noteChange(Change::auditEntries);
    if (outcome->review) {
        applyReport(*std::move(outcome->review));
    }
    if (result.wasCancelled) {
        setPhase(hasBegun ? Phase::ready : restingPhase());
    } else {
        setPhase(Phase::finished);
    }
    if (auto message = messages.after(result)) {
        setErrorMessage(std::move(message));
    }
    setLastCleanResult(std::move(result));
    publish();
}

} // namespace KarvelloUI
