#include "KarvelloUI/Screens/Home/HomeFigures.h"

#include "KarvelloUI/Advisors/SmartCleanupCoach.h"
#include "KarvelloUI/Advisors/StorageTrendTimeline.h"
#include "KarvelloUI/Dashboard/RawText.h"
#include "Platform/Base/LocalizedText.h"

#include <algorithm>
#include <string>

namespace KarvelloUI::HomeFigures {

using Phase = CleanerViewModel::Phase;

namespace {

QString iconOf(StorageRecommendationKind kind)
{
    switch (kind) {
    case StorageRecommendationKind::lowDiskReview:
        return QStringLiteral("disk");
    case StorageRecommendationKind::duplicateReview:
        return QStringLiteral("duplicates");
    case StorageRecommendationKind::permissionGuide:
        return QStringLiteral("lock");
    case StorageRecommendationKind::cleanupReview:
        return QStringLiteral("cleanup-review");
    case StorageRecommendationKind::largeFileReview:
        return QStringLiteral("large-files");
    case StorageRecommendationKind::downloadsReview:
        return QStringLiteral("downloads");
    case StorageRecommendationKind::scanPrimer:
        return QStringLiteral("scan");
    }
    return {};
}

std::string scanDetail(const Progress& progress, const DashboardWords& words)
{
    if (progress.phase == Phase::scanning) {
        return words.scanRunnerProgress(progress.percentage);
    }
    if (!progress.hasReport()) {
        return words.text("아직 스캔 안 함", "No scan yet");
    }
    return Platform::LocalizedText::timeAgo(progress.secondsSinceScan, words.locale()).value_or("");
}

std::string restoreDetail(const Progress& progress, const DashboardWords& words)
{
    if (!progress.isLogLoaded) {
        return words.auditLogLoading();
    }
    return progress.recordedMoveCount == 0
        ? words.say("Nothing recorded yet")
        : words.count(progress.recordedMoveCount, "{} recorded move", "{} recorded moves");
}

/// By its place among the steps; four if there is nothing left to do.
std::size_t currentStep(const Progress& progress)
{
    constexpr std::size_t kScan = 1;
    constexpr std::size_t kReview = 2;
    constexpr std::size_t kRestore = 3;
    if (progress.phase == Phase::restoring) {
        return kRestore;
    }
    if (progress.phase == Phase::cleaning) {
        return kReview;
    }
    if (!progress.hasReport()) {
        return kScan;
    }
    return progress.candidateCount > 0 ? kReview : kRestore;
}

} // namespace

bool Progress::hasReport() const
{
    return phase != Phase::idle && phase != Phase::scanning;
}

std::vector<HomeFlowStep> flow(const Progress& progress, const DashboardWords& words)
{
    std::vector<HomeFlowStep> steps{
        {.title = shown(words.text("01 홈", "01 Home")),
            .detail = shown(words.text("요약 먼저", "Summary first")),
            .iconName = QStringLiteral("dashboard"),
            .section = rawText(MacDashboardSection::dashboard)},
        {.title = shown(words.text("02 스캔", "02 Scan")),
            .detail = shown(scanDetail(progress, words)),
            .iconName = QStringLiteral("scan"),
            .section = rawText(MacDashboardSection::cleanup)},
        {.title = shown(words.text("03 검토", "03 Review")),
            .detail = shown(progress.hasReport() ? words.count(progress.candidateCount, "{} candidate", "{} candidates")
                                                 : words.text("스캔 후 표시", "Shown after scan")),
            .iconName = QStringLiteral("cleanup-review"),
            .section = rawText(MacDashboardSection::cleanup)},
        {.title = shown(words.text("04 복원", "04 Restore")),
            .detail = shown(restoreDetail(progress, words)),
            .iconName = QStringLiteral("restore"),
            .section = rawText(MacDashboardSection::reviewEvidence)},
    };
    const std::size_t current = currentStep(progress);
    const bool isRestorePossible = progress.canRestore || progress.phase == Phase::restoring;
    for (std::size_t place = 0; place < steps.size(); ++place) {
        HomeFlowStep& step = steps[place];
        step.isDone = place < current;
        step.isCurrent = place == current && (place + 1 < steps.size() || isRestorePossible);
        step.stateText = step.isDone ? shown(words.say("Done"))
            : step.isCurrent         ? shown(words.say("Current step"))
                                     : QString();
    }
    return steps;
}

std::vector<HomeCoachCard> coach(const StorageReviewFigures& figures, const DiskCapacitySnapshot& disk,
    const MacAccessPolicy& access, const DashboardWords& words)
{
    std::vector<HomeCoachCard> cards;
    for (const auto& recommendation : SmartCleanupCoach::recommendations(figures, disk, access, words.language)) {
        // It has no figure to begin with.
        const bool isPrimer = recommendation.kind == StorageRecommendationKind::scanPrimer;
        cards.push_back({
            .figure = shown(isPrimer ? recommendation.title : recommendation.detail),
            .title = shown(isPrimer ? recommendation.detail : recommendation.title),
            .body = shown(recommendation.body),
            .actionTitle =
                shown(words.say("Open {}", words.macDashboardSectionTitle(recommendation.action.destination))),
            .iconName = iconOf(recommendation.kind),
            .section = rawText(recommendation.action.destination),
            .pillText = cards.empty() ? shown(words.trustReviewPill()) : QString(),
        });
    }
    return cards;
}

std::vector<HomeTimelinePoint> timeline(const DiskCapacitySnapshot& disk, const StorageReviewFigures& figures,
    std::span<const CleanerCore::CleanupAuditEntry> log, const DashboardWords& words)
{
    std::vector<HomeTimelinePoint> points;
    for (const auto& point : StorageTrendTimeline::of(disk, figures, log).points) {
        const auto section = point.action ? std::optional(point.action->destination) : std::nullopt;
        points.push_back({
            .kind = rawText(point.kind),
            .title = shown(words.storageTimelinePointTitle(point.kind)),
            .figure = shown(words.byteSize(point.bytes)),
            .date = point.occurredAt ? shown(Platform::LocalizedText::shortDay(*point.occurredAt, words.locale()))
                                     : QString(),
            .text = shown(words.storageTimelinePointBody(point.kind, point.bytes, point.secondaryBytes, section)),
            .detail = shown(words.storageTimelinePointDetail(point.kind, point.itemCount)),
            .actionTitle = section ? shown(words.macDashboardSectionTitle(*section)) : QString(),
            .section = section ? rawText(*section) : QString(),
        });
    }
    return points;
}

std::int64_t recordedMoveCount(std::span<const CleanerCore::CleanupAuditEntry> log)
{
    return std::ranges::count_if(log, [](const CleanerCore::CleanupAuditEntry& entry) {
        return entry.operation == CleanerCore::CleanupAuditOperation::clean
            && entry.mode == CleanerCore::CleaningMode::moveToTrash && entry.succeededItemCount > 0;
    });
}

} // namespace KarvelloUI::HomeFigures
