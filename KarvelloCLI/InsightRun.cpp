#include "KarvelloCLI/InsightRun.h"

#include "CleanerCore/Insights/MacStorageInsightScanner.h"
#include "KarvelloCLI/ProgressLine.h"
#include "Platform/Services/HomeDirectory.h"

namespace KarvelloCLI {

using CleanerCore::MacStorageInsightScanner;

namespace {

void note(InsightCuts& cuts, CleanerCore::InsightLimit limit)
{
    switch (limit) {
    case CleanerCore::InsightLimit::visits:
        cuts.visits = true;
        return;
    case CleanerCore::InsightLimit::recentFiles:
        cuts.recentFiles = true;
        return;
    case CleanerCore::InsightLimit::duplicates:
        cuts.duplicates = true;
        return;
    }
}

} // namespace

std::expected<InsightRun, std::string> InsightRun::perform(const InsightsOptions& options,
    const Platform::FileURL& workingDirectory, const Platform::FileManager& fileManager,
    const Platform::Environment& environment, const std::stop_token& stop)
{
    auto plan =
        InsightPlan::make(options, workingDirectory, Platform::homeDirectoryForCurrentUser(), environment, fileManager);
    if (!plan) {
        return std::unexpected(plan.error());
    }
    InsightRun run{.plan = *std::move(plan), .report = {}, .judgement = {}};
    InsightSubject& subject = run.plan.subject;
    {
        ProgressLine progress(ProgressLine::Settings::of(options.common, subject.home, environment));
        const MacStorageInsightScanner scanner(subject.home, fileManager, subject.configuration,
            {
                .roots = run.plan.roots,
                .environment = run.plan.environment,
                .analyses = {.largeFiles = subject.wants(InsightPart::large),
                    .downloads = subject.wants(InsightPart::downloads),
                    .duplicates = subject.wants(InsightPart::duplicates),
                    .securityFindings = subject.wants(InsightPart::security)},
                .jobs = options.common.jobs,
                .limitHandler = [&subject](CleanerCore::InsightLimit limit) { note(subject.cuts, limit); },
            });
        run.report = scanner.scan(
            Platform::Date::now(), [&](const MacStorageInsightScanner::Progress& step) { progress.report(step); },
            stop);
    }
    subject.isIncomplete = stop.stop_requested();
    run.judgement = ScanJudgement::of(run.report.skippedItems, run.plan.refusedFolders,
        {.folders = subject.folders, .count = subject.folders.size(), .areAll = !subject.looksAtHome});
    subject.isRefused = run.judgement.exitCode == ExitCode::refused;
    subject.hasNothingToLookAt = subject.hasNothingToLookAt || subject.isRefused;
    if (!subject.wants(InsightPart::map)) {
        run.report.heatmapItems.clear();
    }
    auto& skipped = run.report.skippedItems;
    skipped.insert(skipped.begin(), run.plan.refusedFolders.begin(), run.plan.refusedFolders.end());
    return run;
}

} // namespace KarvelloCLI
