#include "KarvelloCLI/CleanCommand.h"

#include "CleanerCore/Cleaning/CleaningService.h"
#include "CleanerCore/Safety/CleaningError.h"
#include "CleanerCore/Safety/CleanupEligibilityPolicy.h"
#include "KarvelloCLI/AuditLog.h"
#include "KarvelloCLI/CleanTexts.h"
#include "KarvelloCLI/CommandOutput.h"
#include "KarvelloCLI/Conversation.h"
#include "KarvelloCLI/Interruption.h"
#include "KarvelloCLI/Messages.h"
#include "KarvelloCLI/ScanRun.h"
#include "KarvelloCLI/SelectedCandidates.h"
#include "KarvelloCLI/Words.h"
#include "KarvelloCLI/WorkingDirectory.h"
#include "Platform/Files/FileError.h"

#include <fmt/format.h>

#include <algorithm>
#include <optional>
#include <tuple>

namespace KarvelloCLI {

namespace {

using CleanerCore::CleanResult;
using CleanerCore::CleanupAuditEntry;
using CleanerCore::FailedCleanItem;

/// How many entries a folder may hold to be looked through once more before it moves.
constexpr std::int64_t kMostValidatedDescendants = 100'000;
constexpr auto kMode = CleanerCore::CleaningMode::moveToTrash;

ExitCode nothingToMove(const CleanOptions& options, const ScanRun& run, const SelectedCandidates& selected)
{
    if (!selected.unknownIds.empty()) {
        printMessage("Nothing was moved.");
        return ExitCode::refused;
    }
    if (options.selection == CleanSelection::preselected && !run.report.candidates.empty()) {
        printMessage(fmt::format(
            "Nothing was moved: none of the {} found is preselected.", counted(run.report.candidates.size(), "item")));
    } else {
        printMessage("Nothing was moved: nothing to clean up was found.");
    }
    return run.judgement.exitCode;
}

/// Of an item that did not move as it should, whether something did move all the same.
bool mayHaveMoved(const FailedCleanItem& item)
{
    const std::string& path = item.candidate.url.path();
    using ErrorKind = CleanerCore::CleaningError::Kind;
    const CleanerCore::CleaningError unverified{ErrorKind::cleanupPostOperationVerificationFailed, path};
    const Platform::FileError stranger{
        .kind = Platform::FileErrorKind::movedUnconfirmed, .operation = Platform::FileOperation::trash, .path = path};
    return item.reason == unverified.errorDescription() || item.reason == stranger.localizedDescription();
}

} // namespace

ExitCode exitCodeOf(const CleanResult& result)
{
    if (result.wasCancelled) {
        return ExitCode::interrupted;
    }
    if (result.failedItems.empty()) {
        return ExitCode::done;
    }
    const bool somethingMoved = !result.cleanedItems.empty() || std::ranges::any_of(result.failedItems, mayHaveMoved);
    return somethingMoved ? ExitCode::partial : ExitCode::refused;
}

ExitCode CleanCommand::run(const CleanOptions& options) const
{
    const CommonOptions& common = options.scan.common;
    const auto here = workingDirectoryFor(options.scan.paths());
    if (!here) {
        printMessage(here.error());
        return ExitCode::wrongUsage;
    }
    const auto output = openOutput(common, *here, m_fileManager);
    if (!output) {
        return ExitCode::wrongUsage;
    }
    if (!options.isConfirmed && !Conversation::isPossible()) {
        printMessage("There is no terminal to ask on, so nothing was moved; --yes agrees beforehand.");
        return ExitCode::refused;
    }

    std::optional<Interruption> interruption(std::in_place);
    const std::stop_token stop = interruption->token();
    const auto run = ScanRun::perform(options.scan, *here, m_fileManager, m_environment, stop);
    if (!run) {
        printMessage(run.error());
        return ExitCode::refused;
    }
    const auto interrupted = [] {
        printMessage("Interrupted: nothing was moved.");
        return ExitCode::interrupted;
    };
    if (run->plan.subject.isIncomplete) {
        return interrupted();
    }
    // Now, so that a folder that is put in the place of another one while the question waits is found out.
    const auto& locations = run->plan.locations;
    const auto& home = run->plan.subject.home;
    const CleanerCore::CleanupEligibilityPolicy eligibility(locations, m_fileManager, kMostValidatedDescendants, home);

    run->judgement.tellRefusals(m_fileManager);
    if (run->judgement.failures > 0) {
        printMessage(counted(run->judgement.failures, "item") + " could not be read; karvello-cli scan tells which.");
    }
    if (run->judgement.exitCode == ExitCode::refused) {
        return ExitCode::refused;
    }
    const auto selected = SelectedCandidates::of(run->report.candidates, options.selection, options.ids);
    for (const std::string& id : selected.unknownIds) {
        printMessage(fmt::format("The scan found no item with the id “{}”.", TerminalText(id).string()));
    }
    const auto& candidates = selected.candidates;
    if (candidates.empty()) {
        return nothingToMove(options, *run, selected);
    }

    const Conversation conversation(common,
        options.isConfirmed ? Conversation::Consent::isGiven : Conversation::Consent::isAsked, home, m_environment);
    const TextStyle& style = conversation.style();
    if (!conversation.say(cleanPreview(candidates, run->report.scannedAt, style) + "\n")) {
        printMessage("What would move could not be shown, so nothing was moved.");
        return ExitCode::refused;
    }
    switch (conversation.ask(cleanQuestion(candidates, style), stop)) {
    case Answer::yes:
        break;
    case Answer::no:
        printMessage("Nothing was moved.");
        return ExitCode::refused;
    case Answer::interrupted:
        return interrupted();
    }

    interruption->insistOnAnEnd();
    const CleanResult result = CleanerCore::CleaningService(m_fileManager, m_trash)
                                   .clean(candidates, locations, kMode, eligibility, stop, home);
    const auto entry = CleanupAuditEntry::clean(
        result, kMode, candidates, CleanerCore::CleanupAuditSource::cleanupDashboard, Platform::Date::now());
    const Logged logged = appendToAuditLog(m_log, entry, m_fileManager);
    if (!output->isReplacedAtomically()) {
        interruption.reset();
    }

    Delivery delivery = Delivery::written;
    if (common.format == OutputFormat::table) {
        const auto outputStyle = TextStyle::of(common, output->descriptor(), home, m_environment);
        delivery = deliver(cleanAccount(candidates, result, outputStyle), *output, m_fileManager);
    } else {
        std::ignore = conversation.say(cleanAccount(candidates, result, style));
        delivery = deliverAuditExport(std::span(&entry, 1), common, *output, m_fileManager);
    }
    if (result.wasCancelled) {
        printMessage(
            logged == Logged::yes ? "Interrupted: what was moved until then has been logged." : "Interrupted.");
    }
    const bool isWhole = logged == Logged::yes && delivery == Delivery::written && selected.unknownIds.empty()
        && run->judgement.exitCode == ExitCode::done;
    const ExitCode code = exitCodeOf(result);
    return code == ExitCode::done && !isWhole ? ExitCode::partial : code;
}

} // namespace KarvelloCLI
