#include "KarvelloUI/Advisors/SmartCleanupCoach.h"

#include "KarvelloUI/Copy/KarvelloCopy.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

namespace KarvelloUI {

namespace {

constexpr std::int64_t kMiB = 1024 * 1024;
constexpr std::int64_t kGiB = 1024 * kMiB;
constexpr std::int64_t kLeastDuplicateBytes = 512 * kMiB;
constexpr std::int64_t kLeastFileBytes = 256 * kMiB;
constexpr std::int64_t kMostPointsInABand = 20;
constexpr std::size_t kMostRecommendations = 3;

int priorityOf(int base, std::int64_t points)
{
    return base + static_cast<int>(std::clamp<std::int64_t>(points, 0, kMostPointsInABand));
}

/// Makes each kind of recommendation, if there is reason for it.
class Advice {
public:
    Advice(const StorageReviewFigures& figures, AppLanguage language)
        : m_figures(figures)
        , m_copy{language}
    {
    }

    [[nodiscard]] std::optional<StorageRecommendation> lowDiskReview(const DiskCapacitySnapshot& disk) const
    {
        const auto target = m_figures.largestReviewTarget();
        if (!target || !disk.isLow()) {
            return std::nullopt;
        }
        return sized(StorageRecommendationKind::lowDiskReview, 900, target->bytes,
            m_copy.smartCleanupLowDiskBody(disk.freeBytes, m_copy.macDashboardSectionTitle(target->section)),
            "internaldrive.fill", target->section);
    }

    [[nodiscard]] std::optional<StorageRecommendation> duplicateReview() const
    {
        if (m_figures.duplicateWastedBytes < kLeastDuplicateBytes) {
            return std::nullopt;
        }
        return sized(StorageRecommendationKind::duplicateReview, 930, m_figures.duplicateWastedBytes,
            m_copy.smartCleanupDuplicatesBody(m_figures.duplicateGroupCount), "doc.on.doc.fill",
            MacDashboardSection::duplicates);
    }

    [[nodiscard]] std::optional<StorageRecommendation> permissionGuide(const MacAccessPolicy& access) const
    {
        const std::int64_t blocked = m_figures.blockedItemCount;
        if (blocked == 0 && access.hasHomeAccess()) {
            return std::nullopt;
        }
        return made(StorageRecommendationKind::permissionGuide, priorityOf(880, blocked),
            m_copy.smartCleanupPermissionBody(blocked), m_copy.smartCleanupPermissionDetail(blocked), "lock.fill",
            MacDashboardSection::settings);
    }

    [[nodiscard]] std::optional<StorageRecommendation> cleanupReview() const
    {
        if (m_figures.reclaimableBytes < 1) {
            return std::nullopt;
        }
        return sized(StorageRecommendationKind::cleanupReview, 830, m_figures.reclaimableBytes,
            m_copy.smartCleanupCandidatesBody(m_figures.candidateCount), "checklist.checked",
            MacDashboardSection::cleanup);
    }

    [[nodiscard]] std::optional<StorageRecommendation> largeFileReview() const
    {
        if (m_figures.largeFileBytes < kLeastFileBytes) {
            return std::nullopt;
        }
        return sized(StorageRecommendationKind::largeFileReview, 780, m_figures.largeFileBytes,
            m_copy.smartCleanupLargeFilesBody(m_figures.largeFileCount), "internaldrive",
            MacDashboardSection::largeFiles);
    }

    [[nodiscard]] std::optional<StorageRecommendation> downloadsReview() const
    {
        if (m_figures.downloadBytes < kLeastFileBytes) {
            return std::nullopt;
        }
        return sized(StorageRecommendationKind::downloadsReview, 740, m_figures.downloadBytes,
            m_copy.smartCleanupDownloadsBody(m_figures.downloadCount), "arrow.down.circle.fill",
            MacDashboardSection::downloads);
    }

    [[nodiscard]] StorageRecommendation scanPrimer() const
    {
        return made(StorageRecommendationKind::scanPrimer, 500, m_copy.smartCleanupPrimerBody(),
            m_copy.smartCleanupPrimerDetail(), "sparkles", MacDashboardSection::cleanup);
    }

private:
    [[nodiscard]] StorageRecommendation made(StorageRecommendationKind kind, int priority, std::string body,
        std::string detail, std::string_view systemImage, MacDashboardSection destination) const
    {
        return {
            .kind = kind,
            .title = m_copy.smartCleanupTitle(kind),
            .body = std::move(body),
            .detail = std::move(detail),
            .actionTitle = m_copy.smartCleanupOpenSectionCTA(m_copy.macDashboardSectionTitle(destination)),
            .systemImage = std::string(systemImage),
            .priority = priority,
            .action = {.destination = destination},
        };
    }

    [[nodiscard]] StorageRecommendation sized(StorageRecommendationKind kind, int base, std::int64_t bytes,
        std::string body, std::string_view systemImage, MacDashboardSection destination) const
    {
        return made(kind, priorityOf(base, bytes / kGiB), std::move(body), m_copy.smartCleanupSizeDetail(bytes),
            systemImage, destination);
    }

    const StorageReviewFigures& m_figures;
    KarvelloCopy m_copy;
};

bool recommendationSort(const StorageRecommendation& left, const StorageRecommendation& right)
{
    if (left.priority != right.priority) {
        return left.priority > right.priority;
    }
    return std::tuple(Platform::rawValue(left.kind), std::string_view(left.title))
        < std::tuple(Platform::rawValue(right.kind), std::string_view(right.title));
}

} // namespace

std::vector<StorageRecommendation> SmartCleanupCoach::recommendations(const CleanerCore::ScanReport& cleanupReport,
    const CleanerCore::MacStorageInsightReport& insightReport, const DiskCapacitySnapshot& diskSnapshot,
    const MacAccessPolicy& accessPolicy, AppLanguage language)
{
    return recommendations(
        StorageReviewFigures::of(cleanupReport, insightReport), diskSnapshot, accessPolicy, language);
}

std::vector<StorageRecommendation> SmartCleanupCoach::recommendations(const StorageReviewFigures& figures,
    const DiskCapacitySnapshot& diskSnapshot, const MacAccessPolicy& accessPolicy, AppLanguage language)
{
    const Advice advice(figures, language);

    std::vector<StorageRecommendation> raised;
    for (auto& recommendation :
        {advice.lowDiskReview(diskSnapshot), advice.duplicateReview(), advice.permissionGuide(accessPolicy),
            advice.cleanupReview(), advice.largeFileReview(), advice.downloadsReview()}) {
        if (recommendation) {
            raised.push_back(*recommendation);
        }
    }
    if (raised.empty()) {
        raised.push_back(advice.scanPrimer());
    }
    std::ranges::stable_sort(raised, recommendationSort);
    raised.resize(std::min(raised.size(), kMostRecommendations));
    return raised;
}

} // namespace KarvelloUI
