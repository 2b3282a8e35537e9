#pragma once

#include "KarvelloUI/Sessions/CleanerViewModel.h"
#include "KarvelloUI/Sessions/MacInsightsViewModel.h"
#include "KarvelloUI/Sessions/MacResourceReliefViewModel.h"
#include "KarvelloUI/Stores/CleanupIgnoreStore.h"
#include "KarvelloUI/Stores/CustomScanFolderStore.h"
#include "KarvelloUI/Stores/HomeAccessBookmarkStore.h"
#include "KarvelloUI/Stores/SystemMetricHistoryStore.h"

#include <memory>

namespace KarvelloUI {

/// The long-lived objects that the dashboard holds: its three sessions and two of the user's lists, with what these
/// sessions store to. They live as long as the window.
struct MacCleanerDashboardDependencies {
    /// Where the system is asked.
    struct Providers {
        AppCacheRunningAppProvider runningApplications;
        SystemSnapshotProvider systemSnapshot = [] { return CleanerCore::SystemResourceSnapshot::current(); };
        ResourceReliefProviders resourceRelief;
        ResourceReliefRequester requester;
        Platform::FileURL homeDirectory;
        /// The person's home, to which the grant must belong.
        HomeAccessBookmarkStore::CurrentHomeProvider currentHome = CleanerCore::cleanerCoreRealUserHomeDirectory;
        SystemMetricHistoryPersistenceScheduler::Time metricHistoryTime =
            SystemMetricHistoryPersistenceScheduler::Time::ofMachine();
        CleanerCore::InsightConfiguration insightConfiguration =
            MacCleanerDashboardDependencies::insightConfiguration();
    };

    std::unique_ptr<CleanupIgnoreStore> ignoreStore;
    std::unique_ptr<SystemMetricHistoryStore> metricHistoryStore;
    std::unique_ptr<CleanerViewModel> cleanerViewModel;
    std::unique_ptr<MacInsightsViewModel> insightsViewModel;
    std::unique_ptr<MacResourceReliefViewModel> resourceReliefViewModel;
    std::unique_ptr<CustomScanFolderStore> customFolderStore;
    std::unique_ptr<HomeAccessBookmarkStore> homeAccessBookmarkStore;

    /// What the application scans for, whatever the scanner's own defaults are.
    [[nodiscard]] static CleanerCore::InsightConfiguration insightConfiguration();

    /// All of them on their default keys and files. What the services and `defaults` name outlives them.
    static MacCleanerDashboardDependencies make(SessionServices services, Platform::UserDefaults& defaults,
        const LanguageProvider& language, Providers providers);
};

} // namespace KarvelloUI
