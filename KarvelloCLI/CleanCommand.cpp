#include "KarvelloCLI/CleanCommand.h"

#include "CleanerCore/Cleaning/CleaningService.h"
#include "CleanerCore/Safety/CleaningError.h"
#include "CleanerCore/Safety/CleanupEligibilityPolicy.h"
#include "KarvelloCLI/CleanTexts.h"
#include "KarvelloCLI/CommandOutput.h"
#include "KarvelloCLI/Errand.h"
#include "KarvelloCLI/ErrandOutcome.h"
#include "KarvelloCLI/Interruption.h"
#include "KarvelloCLI/Messages.h"
#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/ScanRun.h"
#include "KarvelloCLI/SelectedCandidates.h"
#include "Platform/Files/FileError.h"

#include <optional>
#include <span>
#include <string>

namespace KarvelloCLI {

namespace {

using CleanerCore::CleanResult;
using CleanerCore::CleanupAuditEntry;
using CleanerCore::FailedCleanItem;

constexpr auto kMode = CleanerCore::CleaningMode::moveToTrash;

ExitCode nothingToMove(const CleanOptions& options, const ScanRun& run, const SelectedCandidates& selected)
{
    if (!selected.unknownIds.empty()) {
        printMessage(say("Nothing was moved."));
        return ExitCode::refused;
    }
    if (options.selection == CleanSelection::preselected && !run.report.candidates.empty()) {
        printMessage(
            counted(run.report.candidates.size(), "Nothing was moved: none of the {} item found is preselected.",
                "Nothing was moved: none of the {} items found is preselected."));
    } else {
        printMessage(say("Nothing was moved: nothing to clean up was found."));
    }
    return run.judgement.exitCode;
}

/// Of an item that did not move as it should, whether something did move all the same.
bool mayHaveMovedToTrash(const FailedCleanItem& item)
{
    const std::string& path = item.candidate.url.path();
    using ErrorKind = CleanerCore::CleaningError::Kind;
    const CleanerCore::CleaningError unverified{ErrorKind::cleanupPostOperationVerificationFailed, path};
    const Platform::FileError stranger{
        .kind = Platform::FileErrorKind::movedUnconfirmed, .operation = Platform::FileOperation::trash, .path = path};
    return item.reason == unverified.errorDescription() || item.reason == stranger.localizedDescription();
}

/// The move of the selected candidates of one scan.
class CleanErrand final : public Errand {
public:
    /// All must outlive the errand.
    CleanErrand(std::span<const CleanerCore::CleanupCandidate> candidates, const ScanRun& run,
        const CleanerCore::CleanupEligibilityPolicy& eligibility, const Platform::FileManager& fileManager,
        Platform::Trash& trash)
        : m_candidates(candidates)
        , m_run(run)
        , m_eligibility(eligibility)
        , m_fileManager(fileManager)
        , m_trash(trash)
    {
    }

    ErrandKind kind() const override { return ErrandKind::clean; }
    std::string preview(const TextStyle& style) const override
    {
        return cleanPreview(m_candidates, m_run.report.scannedAt, style);
    }
    std::string question(const TextStyle& style) const override { return cleanQuestion(m_candidates, style); }
    CleanupAuditEntry perform(const std::stop_token& stop, const CleanerCore::ItemProgressReport& report) override
    {
        const ScanPlan& plan = m_run.plan;
        m_result = CleanerCore::CleaningService(m_fileManager, m_trash)
                       .clean(m_candidates, plan.locations, kMode, m_eligibility, stop, plan.subject.home, report);
        return CleanupAuditEntry::clean(
            m_result, kMode, m_candidates, CleanerCore::CleanupAuditSource::cleanupDashboard, Platform::Date::now());
    }
    std::string account(const TextStyle& style) const override { return cleanAccount(m_candidates, m_result, style); }
    ExitCode exitCode() const override { return exitCodeOf(m_result); }

private:
    std::span<const CleanerCore::CleanupCandidate> m_candidates;
    const ScanRun& m_run;
    const CleanerCore::CleanupEligibilityPolicy& m_eligibility;
    const Platform::FileManager& m_fileManager;
    Platform::Trash& m_trash;
    CleanResult m_result;
};

} // namespace

ExitCode exitCodeOf(const CleanResult& result)
{
    return exitCodeOfMoves(result, result.cleanedItems, mayHaveMovedToTrash);
}

ExitCode CleanCommand::run(const CleanOptions& options) const
{
    const CommonOptions& common = options.scan.common;
    const auto opened = openPlaces(options.scan.paths(), common, m_fileManager);
    if (!opened) {
        return ExitCode::wrongUsage;
    }
    const OutputFile& output = opened->output;
    if (!mayBeAgreedTo(options.isConfirmed, ErrandKind::clean)) {
        return ExitCode::refused;
    }

    std::optional<Interruption> interruption(std::in_place);
    const auto run =
        ScanRun::perform(options.scan, opened->workingDirectory, m_fileManager, m_environment, interruption->token());
    if (!run) {
        printMessage(run.error());
        return ExitCode::refused;
    }
    if (run->plan.subject.isIncomplete) {
        printMessage(say("Interrupted: nothing was moved."));
        return ExitCode::interrupted;
    }
    // Now, so that a folder that is put in the place of another one while the question waits is found out.
    const auto& home = run->plan.subject.home;
    const CleanerCore::CleanupEligibilityPolicy eligibility(
        run->plan.locations, m_fileManager, kMostValidatedDescendants, home);

    run->judgement.tellRefusals(m_fileManager);
    if (run->judgement.failures > 0) {
        printMessage(counted(run->judgement.failures, "{} item could not be read; karvello-cli scan tells which.",
            "{} items could not be read; karvello-cli scan tells which."));
    }
    if (run->judgement.exitCode == ExitCode::refused) {
        return ExitCode::refused;
    }
    const auto selected = SelectedCandidates::of(run->report.candidates, options.selection, options.ids);
    for (const std::string& id : selected.unknownIds) {
        printMessage(say("The scan found no item with the id “{}”.", TerminalText(id).string()));
    }
    if (selected.candidates.empty()) {
        return nothingToMove(options, *run, selected);
    }

    CleanErrand errand(selected.candidates, *run, eligibility, m_fileManager, m_trash);
    const ExitCode code = runErrand(errand,
        {.common = common,
            .isConfirmed = options.isConfirmed,
            .home = home,
            .output = output,
            .fileManager = m_fileManager,
            .log = m_log,
            .environment = m_environment},
        interruption);
    const bool isAllThatWasAsked = selected.unknownIds.empty() && run->judgement.exitCode == ExitCode::done;
    return code == ExitCode::done && !isAllThatWasAsked ? ExitCode::partial : code;
}

} // namespace KarvelloCLI
