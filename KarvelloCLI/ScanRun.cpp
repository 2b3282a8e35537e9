#include "KarvelloCLI/ScanRun.h"

#include "CleanerCore/Scan/AppCacheContextEnricher.h"
#include "CleanerCore/Scan/StorageScanner.h"
#include "KarvelloCLI/Messages.h"
#include "KarvelloCLI/ProgressLine.h"
#include "KarvelloCLI/Say.h"
#include "KarvelloCLI/SkipKind.h"
#include "Platform/Linux/LinuxRunningApplications.h"
#include "Platform/Services/HomeDirectory.h"
#include "Platform/Services/SystemStatistics.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace KarvelloCLI {

namespace {

using CleanerCore::ScanReport;
using CleanerCore::SkippedItem;
using Platform::FileURL;

/// The reason, with the path where it does not name it itself.
std::string sentenceOn(const SkippedItem& item)
{
    const std::string reason = TerminalText(sayReason(item.reason), TerminalText::Kind::sentence).string();
    const std::string path = TerminalText(item.url.path()).string();
    return item.reason.ends_with(item.url.path()) ? reason : say("{}: {}", reason, path);
}

/// A refused folder often is one that the user reaches through a link, where the folder itself would do.
std::optional<std::string> hintForLink(const FileURL& folder, const Platform::FileManager& fileManager)
{
    const FileURL real = fileManager.resolvingSymbolicLinks(folder);
    if (real.path() == folder.path() || !fileManager.directoryExists(real)) {
        return std::nullopt;
    }
    return say("Its path leads through a symbolic link, and none is followed; the folder itself is {}",
        TerminalText(real.path()).string());
}

/// Tells the candidates in containers whether their application runs. Only this user's programs can be seen, so nothing
/// is said of a home that is not this user's own, nor if they cannot be seen at all.
void addRunningOwners(ScanReport& report, const FileURL& home, const Platform::FileManager& fileManager,
    const Platform::Environment& environment)
{
    const auto hasContext = [](const auto& candidate) { return candidate.appCacheContext.has_value(); };
    const auto ownHome = fileManager.resolvingSymbolicLinks(Platform::homeDirectoryForCurrentUser());
    if (std::ranges::none_of(report.candidates, hasContext) || home != ownHome) {
        return;
    }
    const Platform::LinuxRunningApplications runtime(Platform::LinuxRunningApplications::Settings::current(environment),
        Platform::SystemStatistics::ofThisMachine());
    const auto applications = runtime.applications();
    if (!applications) {
        return;
    }
    const auto identities = CleanerCore::AppCacheRunningApplicationIdentity::of(*applications);
    report.candidates = CleanerCore::AppCacheContextEnricher::enrich(std::move(report.candidates), identities);
}

} // namespace

ScanJudgement ScanJudgement::of(const ScanReport& report, const ScanPlan& plan)
{
    return of(report.skippedItems, plan.refusedFolders,
        {.folders = plan.roots, .count = plan.subject.folders.size(), .areAll = !plan.subject.mode});
}

ScanJudgement ScanJudgement::of(
    std::span<const SkippedItem> skippedItems, std::vector<SkippedItem> refusedBeforehand, const NamedFolders& named)
{
    ScanJudgement judgement;
    judgement.refusals = std::move(refusedBeforehand);
    for (const SkippedItem& item : skippedItems) {
        switch (skipKind(item.reason)) {
        case SkipKind::protection:
            break;
        case SkipKind::refusal:
            if (std::ranges::find(named.folders, item.url.path(), &FileURL::path) != named.folders.end()) {
                judgement.refusals.push_back(item);
            }
            break;
        case SkipKind::failure:
            ++judgement.failures;
            break;
        }
    }
    if (named.areAll && !judgement.refusals.empty() && judgement.refusals.size() == named.count) {
        judgement.exitCode = ExitCode::refused;
    } else if (!judgement.refusals.empty() || judgement.failures > 0) {
        judgement.exitCode = ExitCode::partial;
    }
    return judgement;
}

void ScanJudgement::tellRefusals(const Platform::FileManager& fileManager) const
{
    for (const SkippedItem& refusal : refusals) {
        printMessage(say("Not scanned: {}", sentenceOn(refusal)));
        if (const auto hint = hintForLink(refusal.url, fileManager)) {
            printMessage(*hint);
        }
    }
}

ExitCode ScanJudgement::conclude(bool isInterrupted, const Platform::FileManager& fileManager) const
{
    tellRefusals(fileManager);
    if (failures > 0) {
        printMessage(counted(failures, "{} item could not be read, which the skipped items tell of.",
            "{} items could not be read, which the skipped items tell of."));
    }
    if (isInterrupted) {
        printMessage(say("Interrupted: the result is incomplete."));
        return ExitCode::interrupted;
    }
    return exitCode;
}

std::expected<ScanRun, std::string> ScanRun::perform(const ScanOptions& options, const FileURL& workingDirectory,
    const Platform::FileManager& fileManager, const Platform::Environment& environment, const std::stop_token& stop)
{
    auto plan = ScanPlan::make(
        options, workingDirectory, Platform::homeDirectoryForCurrentUser(), environment, fileManager, stop);
    if (!plan) {
        return std::unexpected(plan.error());
    }
    for (const std::string& sentence : plan->overlaps()) {
        printMessage(sentence);
    }
    ScanRun run{.plan = *std::move(plan), .report = {}, .judgement = {}};
    {
        ProgressLine progress(ProgressLine::Settings::of(options.common, run.plan.subject.home, environment));
        const CleanerCore::StorageScanner scanner(fileManager, {.jobs = options.common.jobs});
        run.report = scanner.scan(
            run.plan.locations, Platform::Date::now(), [&](const auto& step) { progress.report(step); }, stop,
            run.plan.subject.home);
    }
    addRunningOwners(run.report, run.plan.subject.home, fileManager, environment);
    run.plan.subject.isIncomplete = stop.stop_requested();
    run.judgement = ScanJudgement::of(run.report, run.plan);
    run.plan.subject.isRefused = run.judgement.exitCode == ExitCode::refused;
    return run;
}

} // namespace KarvelloCLI
