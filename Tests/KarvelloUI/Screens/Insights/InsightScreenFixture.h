#pragma once

#include "Tests/KarvelloUI/Dashboard/DashboardFixture.h"
#include "Tests/KarvelloUI/Dashboard/HostileName.h"
#include "Tests/KarvelloUI/Dashboard/SmallFileInsights.h"

#include <QSignalSpy>
#include <string>
#include <vector>

namespace InsightScreenTests {

using namespace KarvelloUI;
using enum MacInsightFileSection;
using namespace DashboardTests;

/// A home with large files (one where nothing may be cleaned, one too new to be judged), downloads, two groups of
/// duplicates (in one of them an extra that may not be cleaned) and a finding.
inline constexpr std::string_view kHome = R"(
    "home/Library/Application Support/"
        engine.bin size=96K age=90d
        photo.jpg size=40K age=90d
    home/Documents/
        thesis.pdf size=64K age=400d
        photo.jpg size=40K age=200d
    home/Downloads/
        film.mov size=128K age=40d
        disc.img size=72K age=60d
        photo.jpg size=40K age=60d
        setup.sh size=8K age=60d
        new.bin size=112K age=1h
    home/Pictures/
        copy.jpg size=40K age=100d
    home/Movies/
        disc.img size=72K age=90d
    home/Music/
)";

/// A dashboard over that home, which scans when told to.
class InsightScreenTest : public DashboardTests::DashboardTest {
protected:
    explicit InsightScreenTest(std::string_view layoutOfHome = kHome)
        : DashboardTest(layoutOfHome)
    {
        insightConfiguration = DashboardTests::insightsOfSmallFiles();
        restart();
    }

    void scan()
    {
        dashboard->scanInsights();
        settle();
    }
    [[nodiscard]] MacInsightsViewModel& session() { return dashboard->insights(); }
};

} // namespace InsightScreenTests
