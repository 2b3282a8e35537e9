#pragma once

#include "KarvelloUI/Controls/MetricTile.h"
#include "KarvelloUI/Controls/NamedValue.h"
#include "KarvelloUI/Screens/Home/HomeScreenModel.h"
#include "Tests/KarvelloUI/Dashboard/DashboardFixture.h"
#include "Tests/KarvelloUI/Dashboard/HostileName.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include <fcntl.h>
#include <unistd.h>

namespace HomeTests {

using namespace KarvelloUI;

/// A home with clutter, large files and a project, and the home screen's model over it.
class HomeTest : public DashboardTests::DashboardTest {
protected:
    HomeTest()
        : DashboardTest("home/.cache/pip/wheel size=64K age=90d\n"
                        "home/.cache/thumbnails/large/t.png size=16K age=90d\n"
                        "home/Downloads/report.pdf size=2M age=90d\n"
                        "home/Projects/atlas/node_modules/lib.js size=300K age=143d\n"
                        "home/Projects/atlas/src.js size=1K age=1d\n")
    {
        systemSnapshot = {.capturedAt = now,
            .physicalMemoryBytes = 16ULL << 30,
            .usedMemoryBytes = 9ULL << 30,
            .memoryPressure = "Normal",
            .normalizedCPULoad = 0.18,
            .processorCount = 8,
            .activeProcessorCount = 8,
            .thermalState = "Nominal"};
        remake();
    }

    /// Files large enough to be recommended: blocks that nobody has written to.
    void addLargeFiles()
    {
        tree.add("home/Videos/film.mkv size=1K age=90d\nhome/Downloads/image.iso size=1K age=90d");
        for (const auto* const name : {"home/Videos/film.mkv", "home/Downloads/image.iso"}) {
            const auto path = tree.path(name);
            const auto modified = std::filesystem::last_write_time(path);
            const int file = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
            ASSERT_EQ(::posix_fallocate(file, 0, 300 << 20), 0);
            ASSERT_EQ(::close(file), 0);
            std::filesystem::last_write_time(path, modified);
        }
    }

    /// The dashboard is started again, and the model over it.
    void remake()
    {
        home.reset();
        restart();
        home = std::make_unique<HomeScreenModel>(*dashboard);
        dashboard->dashboardLifecycle();
        settle();
    }

    void scan()
    {
        home->startScan();
        settle();
    }
    void scanEverything()
    {
        scan();
        dashboard->scanInsights();
        settle();
    }
    /// Moves all that the scan found to the Trash.
    void cleanEverything()
    {
        dashboard->selectSection(MacDashboardSection::cleanup);
        dashboard->cleaner().selectAllCandidates();
        dashboard->requestCleanSelected();
        dashboard->cleanSelected();
        settle();
        dashboard->selectSection(MacDashboardSection::dashboard);
        settle();
    }
    void addProjects()
    {
        ASSERT_TRUE(dashboard->customFolders().addFolder(tree.url("home/Projects/atlas/"), fileManager, now));
        settle();
    }
    void sample()
    {
        dashboard->insights().refreshSystemSnapshot();
        settle();
    }

    template <typename Row>
    static Row row(RowList* list, int index)
    {
        return list->row(index).value<Row>();
    }
    HomeFlowStep step(int index) { return row<HomeFlowStep>(home->flow(), index); }
    MetricTile metric(int index) { return row<MetricTile>(home->metrics(), index); }
    HomeCoachCard card(int index) { return row<HomeCoachCard>(home->coach(), index); }
    HomeTimelinePoint point(int index) { return row<HomeTimelinePoint>(home->timeline(), index); }
    ProjectRow project(int index) { return row<ProjectRow>(home->projects()->projects(), index); }
    NamedValue figure(int index) { return row<NamedValue>(home->projects()->figures(), index); }

    std::unique_ptr<HomeScreenModel> home;
};

} // namespace HomeTests
