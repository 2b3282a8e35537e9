#include "KarvelloUI/Screens/Home/HomeFigures.h"

#include <gtest/gtest.h>
#include <limits>

namespace HomeTests {

using namespace KarvelloUI;
using namespace KarvelloUI::HomeFigures;

namespace {

constexpr DashboardWords kEnglish(AppLanguage::english);

SystemMetricHistory historyOf(const std::vector<double>& samples)
{
    return {samples, samples, samples};
}

} // namespace

TEST(HomeHero, TheReclaimablePartIsNeverMoreThanWhatIsUsed)
{
    const auto shown = hero({.totalBytes = 100, .freeBytes = 90}, 1'000, kEnglish);
    EXPECT_DOUBLE_EQ(shown.usedFraction, 0.1);
    EXPECT_DOUBLE_EQ(shown.reclaimableFraction, 0.1);
}

TEST(HomeHero, AFullDiskAndAnEmptyOneHaveTheirWholeBars)
{
    EXPECT_DOUBLE_EQ(hero({.totalBytes = 100, .freeBytes = 0}, 0, kEnglish).usedFraction, 1);
    EXPECT_DOUBLE_EQ(hero({.totalBytes = 100, .freeBytes = 100}, 0, kEnglish).usedFraction, 0);
    EXPECT_EQ(hero({.totalBytes = 100, .freeBytes = 0}, 0, kEnglish).percent, QStringLiteral("0%"));
}

TEST(HomeMetrics, ASnapshotThatWasNeverTakenHasNoFigures)
{
    for (const auto& metric : metrics({}, {}, kEnglish)) {
        EXPECT_EQ(metric.figure, QStringLiteral("—")) << metric.name.toStdString();
        EXPECT_EQ(metric.text, QStringLiteral("No reading"));
        EXPECT_EQ(metric.emptyText, QStringLiteral("No samples"));
        EXPECT_EQ(metric.unit, QString());
    }
}

TEST(HomeMetrics, AMachineWithoutSensorsHasEverythingElse)
{
    const auto shown = metrics({.physicalMemoryBytes = 16ULL << 30,
                                   .usedMemoryBytes = 8ULL << 30,
                                   .memoryPressure = "Unknown",
                                   .normalizedCPULoad = 0.25,
                                   .thermalState = "Unknown"},
        historyOf({0.1, 0.1}), kEnglish);
    EXPECT_EQ(shown.at(0).figure, QStringLiteral("25%"));
    EXPECT_EQ(shown.at(1).figure, QStringLiteral("50%"));
    EXPECT_EQ(shown.at(1).unit, QStringLiteral("8 / 16 GB"));
    EXPECT_EQ(shown.at(1).text, QString());
    EXPECT_EQ(shown.at(2).figure, QStringLiteral("—"));
    EXPECT_EQ(shown.at(2).text, QStringLiteral("No reading"));
    EXPECT_EQ(shown.at(0).samples.size(), 2);
    // No curve of what nobody measured.
    EXPECT_EQ(shown.at(2).samples.size(), 0);
    EXPECT_EQ(shown.at(2).emptyText, QStringLiteral("No samples"));
}

TEST(HomeMetrics, DifferentUnitsAreBothSaid)
{
    const auto shown =
        metrics({.physicalMemoryBytes = 1ULL << 30, .usedMemoryBytes = 512ULL << 20}, historyOf({}), kEnglish);
    EXPECT_EQ(shown.at(1).unit, QStringLiteral("512 MB / 1 GB"));
}

TEST(HomeMetrics, ALoadThatIsNoNumberIsNotShownAsOne)
{
    const auto shown =
        metrics({.normalizedCPULoad = std::numeric_limits<double>::quiet_NaN()}, historyOf({}), kEnglish);
    EXPECT_EQ(shown.at(0).figure, QStringLiteral("—"));
}

TEST(HomeMetrics, TellTheirCourseInWords)
{
    const auto shown = metrics({.normalizedCPULoad = 0.5}, historyOf({0.1, 0.3, 0.5}), kEnglish);
    EXPECT_EQ(shown.at(0).samples.size(), 3);
    EXPECT_EQ(shown.at(0).accessibleValue, QStringLiteral("3 samples, 10% → 50%"));
}

TEST(HomeFlow, AWorkUnderWayIsTheCurrentStep)
{
    using Phase = CleanerViewModel::Phase;
    const auto currentOf = [](Progress progress) {
        const auto steps = flow(progress, kEnglish);
        int current = -1;
        for (int index = 0; index < 4; ++index) {
            if (steps.at(static_cast<std::size_t>(index)).isCurrent) {
                EXPECT_EQ(current, -1) << "there are two";
                current = index;
            }
        }
        return current;
    };
    EXPECT_EQ(currentOf({.phase = Phase::idle}), 1);
    EXPECT_EQ(currentOf({.phase = Phase::scanning, .candidateCount = 3}), 1);
    EXPECT_EQ(currentOf({.phase = Phase::ready, .candidateCount = 3}), 2);
    EXPECT_EQ(currentOf({.phase = Phase::cleaning}), 2);
    EXPECT_EQ(currentOf({.phase = Phase::restoring}), 3);
    EXPECT_EQ(currentOf({.phase = Phase::finished, .candidateCount = 1, .canRestore = true}), 2);
    EXPECT_EQ(currentOf({.phase = Phase::finished, .canRestore = true}), 3);
    EXPECT_EQ(currentOf({.phase = Phase::ready}), -1);
}

TEST(HomeFlow, TheStepsAreNumbered)
{
    std::vector<std::string> titles;
    for (const auto& step : flow({}, kEnglish)) {
        titles.push_back(step.title.toStdString());
    }
    EXPECT_EQ(titles, (std::vector<std::string>{"01 Home", "02 Scan", "03 Review", "04 Restore"}));
}

TEST(HomeFlow, TheStateOfAStepIsSaid)
{
    const auto steps = flow({.phase = CleanerViewModel::Phase::ready, .candidateCount = 1}, kEnglish);
    EXPECT_EQ(steps.at(1).stateText, QStringLiteral("Done"));
    EXPECT_EQ(steps.at(2).stateText, QStringLiteral("Current step"));
    EXPECT_EQ(steps.at(2).detail, QStringLiteral("1 candidate"));
    EXPECT_EQ(steps.at(3).stateText, QString());
}

TEST(HomeFlow, ALogThatIsNotReadYetIsNotAnEmptyOne)
{
    EXPECT_EQ(flow({.isLogLoaded = false}, kEnglish).at(3).detail, QStringLiteral("Loading cleanup history…"));
    EXPECT_EQ(flow({.isLogLoaded = true}, kEnglish).at(3).detail, QStringLiteral("Nothing recorded yet"));
}

TEST(HomeTimeline, ALowDiskLeadsToTheLargestTarget)
{
    const auto points = timeline({.totalBytes = 1'000, .freeBytes = 100},
        {.largeFileBytes = 500, .largeFileCount = 2, .reclaimableBytes = 50, .candidateCount = 1}, {}, kEnglish);
    ASSERT_EQ(points.size(), 4);
    EXPECT_EQ(points[1].kind, QStringLiteral("lowDiskReminder"));
    EXPECT_EQ(points[1].section, QStringLiteral("largeFiles"));
    EXPECT_EQ(points[1].detail, QString());
}

TEST(HomeTimeline, OnlyMovesThatMovedSomethingAreCounted)
{
    using CleanerCore::CleaningMode;
    using CleanerCore::CleanupAuditOperation;
    const std::vector<CleanerCore::CleanupAuditEntry> log{
        {.operation = CleanupAuditOperation::clean, .mode = CleaningMode::moveToTrash, .succeededItemCount = 3},
        {.operation = CleanupAuditOperation::clean, .mode = CleaningMode::moveToTrash, .succeededItemCount = 0},
        {.operation = CleanupAuditOperation::clean, .mode = CleaningMode::deletePermanently, .succeededItemCount = 1},
        {.operation = CleanupAuditOperation::restore, .succeededItemCount = 3},
    };
    EXPECT_EQ(recordedMoveCount(log), 1);
}

} // namespace HomeTests
