#include "KarvelloUI/Dashboard/MacCleanerDashboardDependencies.h"

#include <utility>

namespace KarvelloUI {

CleanerCore::InsightConfiguration MacCleanerDashboardDependencies::insightConfiguration()
{
    constexpr std::int64_t kMebibyte = 1'048'576;
    return CleanerCore::InsightConfiguration({
        .minimumLargeFileBytes = 100 * kMebibyte,
        .minimumDuplicateFileBytes = 20 * kMebibyte,
        .minimumReviewFileAge = 86'400.0,
        .maximumVisitedItemsPerRoot = 8'000,
        .maximumResultCount = 250,
        .maximumRecentReviewSkippedItems = 250,
        .maximumDuplicateHashFiles = 500,
        .maximumDuplicateFullHashBytesPerFile = 512 * kMebibyte,
        .maximumDuplicateHashBytes = 1'024 * kMebibyte,
    });
}

MacCleanerDashboardDependencies MacCleanerDashboardDependencies::make(
    SessionServices services, Platform::UserDefaults& defaults, const LanguageProvider& language, Providers providers)
{
    const Platform::FileURL log = CleanerCore::CleanupAuditStore::defaultFileURL(services.environment);
    MacCleanerDashboardDependencies made;
    made.ignoreStore = std::make_unique<CleanupIgnoreStore>(defaults, language);
    made.cleanerViewModel =
        std::make_unique<CleanerViewModel>(services, CleanerCore::CleanupAuditStore(services.fileManager, log),
            *made.ignoreStore, std::move(providers.runningApplications));
    made.metricHistoryStore = std::make_unique<SystemMetricHistoryStore>(defaults);
    made.insightsViewModel = std::make_unique<MacInsightsViewModel>(services,
        MacInsightsViewModel::Setup{
            .homeDirectory = std::move(providers.homeDirectory),
            .scannerConfiguration = providers.insightConfiguration,
            .systemSnapshotProvider = std::move(providers.systemSnapshot),
            .metricHistoryTime = std::move(providers.metricHistoryTime),
        },
        CleanerCore::CleanupAuditStore(services.fileManager, log), *made.metricHistoryStore);
    made.resourceReliefViewModel = std::make_unique<MacResourceReliefViewModel>(
        services.executor, std::move(providers.resourceRelief), std::move(providers.requester));
    made.customFolderStore = std::make_unique<CustomScanFolderStore>(defaults, services.bookmarks, language);
    made.homeAccessBookmarkStore = std::make_unique<HomeAccessBookmarkStore>(defaults, services.bookmarks, language,
        std::string(HomeAccessBookmarkStore::defaultStorageKey), std::move(providers.currentHome));
    return made;
}

} // namespace KarvelloUI
