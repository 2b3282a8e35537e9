#include "KarvelloCLI/InsightRun.h"

#include "CleanerCore/Insights/MacStorageInsightScanner.h"
#include "CleanerCore/Scan/StorageScannerSkipReason.h"
#include "KarvelloCLI/ProgressLine.h"
#include "Platform/Services/HomeDirectory.h"

#include <algorithm>

namespace KarvelloCLI {

using CleanerCore::MacStorageInsightReport;
using CleanerCore::MacStorageInsightScanner;

namespace Reason = CleanerCore::StorageScannerSkipReason;

InsightCuts cutsOf(const MacStorageInsightReport& report, const InsightSubject& subject)
{
    InsightCuts cuts;
    if (!report.isTruncated) {
        return cuts;
    }
    const auto skippedFor = [&](std::string_view reason) {
        return std::ranges::count(report.skippedItems, reason, &CleanerCore::SkippedItem::reason);
    };
    const bool listsFiles = subject.wants(InsightPart::large) || subject.wants(InsightPart::downloads);
    cuts.visits = std::ranges::any_of(report.heatmapItems, &CleanerCore::StorageMapItem::isTruncated);
    cuts.recentFiles = listsFiles && subject.configuration.minimumReviewFileAge > 0
        && skippedFor(Reason::recentlyModified) >= subject.configuration.maximumRecentReviewSkippedItems;
    if (subject.wants(InsightPart::duplicates)) {
        const bool isCertain =
            skippedFor(Reason::duplicateHashBudgetExceeded) > 0 || (!cuts.visits && !cuts.recentFiles);
        cuts.duplicates = isCertain ? InsightCuts::Duplicates::yes : InsightCuts::Duplicates::maybe;
    }
    return cuts;
}

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
            });
        run.report = scanner.scan(
            Platform::Date::now(), [&](const MacStorageInsightScanner::Progress& step) { progress.report(step); },
            stop);
    }
    subject.isIncomplete = stop.stop_requested();
    subject.cuts = cutsOf(run.report, subject);
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
