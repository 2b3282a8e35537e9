#pragma once

#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"
#include "Tests/KarvelloUI/Dashboard/FakeDesktop.h"
#include "Tests/KarvelloUI/Sessions/SessionFixture.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace DashboardTests {

using namespace KarvelloUI;

/// A dashboard over the folder "home" of a tree, which is the user's home with a direct-distribution build unless a test
/// says otherwise. The background work is done by hand: `settle` ends all of it.
class DashboardTest : public SessionTests::SessionTest {
protected:
    explicit DashboardTest(std::string_view layoutOfHome = "home/Library/Caches/pip/wheel size=64K age=90d\n"
                                                           "home/Library/Logs/old.log size=16K age=90d\n"
                                                           "home/Downloads/report.pdf size=2M age=90d")
        : SessionTest(layoutOfHome)
    {
        environment = Platform::Environment(
            {{"HOME", tree.path("home")}, {"TMPDIR", tree.path("home")}, {"XDG_DATA_HOME", tree.path("home/data")}});
        restart();
    }

    /// The application is started again over the same preferences.
    void restart() { restart(fileManager); }
    /// With `files` as its way to the disk.
    void restart(const Platform::FileManager& files)
    {
        restartWithoutSettling(files);
        settle();
    }
    /// Its background work is still to be done.
    void restartWithoutSettling(const Platform::FileManager& files)
    {
        dashboard.reset();
        const SessionServices session{.fileManager = files,
            .trash = trash,
            .bookmarks = bookmarks,
            .environment = environment,
            .executor = executor,
            .now = services.now};
        preferences = std::make_unique<DashboardPreferences>(defaults, preferredLanguages);
        MacCleanerDashboardDependencies::Providers providers;
        providers.runningApplications = [] { return std::vector<CleanerCore::AppCacheRunningApplicationIdentity>(); };
        providers.systemSnapshot = [this] {
            ++systemSnapshotsTaken;
            return systemSnapshot;
        };
        providers.resourceRelief.candidateProvider = [this](const std::stop_token&) { return applications; };
        providers.resourceRelief.capabilityProvider = [this] { return capability; };
        providers.resourceRelief.revalidationProvider = [this](const CleanerCore::ResourceReliefCandidate& candidate)
            -> std::optional<CleanerCore::ResourceReliefProcessSnapshot> {
            for (const auto& application : applications) {
                if (application.processIdentifier == candidate.processIdentifier) {
                    return application;
                }
            }
            return std::nullopt;
        };
        providers.resourceRelief.quitRequester = [this](const CleanerCore::ResourceReliefProcessSnapshot& application) {
            quitRequests.push_back(application.processIdentifier);
            return true;
        };
        providers.resourceRelief.postQuitRefreshDelay = [](const std::stop_token&) {};
        providers.requester = {.currentProcessIdentifier = 1, .currentBundleIdentifier = "test.karvello"};
        providers.homeDirectory = tree.url("home/");
        providers.currentHome = [this] { return tree.url("home/"); };
        dashboard = std::make_unique<MacCleanerDashboardModel>(
            DashboardServices{
                .session = session,
                .defaults = defaults,
                .fileViewer = fileViewer,
                .fileDialogs = fileDialogs,
                .tools = tools,
                .homeDirectory = tree.url("home/"),
                .supportsDirectDistributionScans = [this] { return isDirectDistribution; },
                .diskSnapshot = [this] { return disk; },
            },
            MacCleanerDashboardDependencies::make(
                session, defaults, [this] { return preferences->language(); }, std::move(providers)),
            *preferences);
        dashboard->setObjectName(QStringLiteral("dashboard"));
    }

    /// A finished cleanup scan, on its screen.
    void scanForCleanup()
    {
        dashboard->selectSection(MacDashboardSection::cleanup);
        dashboard->scanCleanup();
        settle();
    }

    std::vector<std::string> preferredLanguages{"en"};
    bool isDirectDistribution = true;
    DiskCapacitySnapshot disk{.totalBytes = 500'000'000'000, .freeBytes = 200'000'000'000};
    CleanerCore::SystemResourceSnapshot systemSnapshot = CleanerCore::SystemResourceSnapshot();
    int systemSnapshotsTaken = 0;
    std::vector<CleanerCore::ResourceReliefProcessSnapshot> applications;
    CleanerCore::ResourceReliefCapability capability = CleanerCore::ResourceReliefCapability::unknown();
    std::vector<std::int32_t> quitRequests;
    FakeFileViewer fileViewer;
    FakeFileDialogs fileDialogs;
    FakeDesktopTools tools;
    std::unique_ptr<DashboardPreferences> preferences;
    std::unique_ptr<MacCleanerDashboardModel> dashboard;
};

} // namespace DashboardTests
