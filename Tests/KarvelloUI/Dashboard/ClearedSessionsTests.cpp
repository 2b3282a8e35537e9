#include "Tests/KarvelloUI/Dashboard/DashboardFixture.h"

#include <cstdint>
#include <gmock/gmock.h>
#include <set>
#include <string>
#include <utility>

namespace DashboardTests {

using CleanerCore::CleanupAuditEntry;
using CleanerCore::CleanupAuditOperation;
using testing::IsEmpty;
using testing::SizeIs;

/// Why the results of both sessions have to go.
enum class Cause : std::uint8_t { anotherMode, aModeFromElsewhere, noAccessAnyMore };

/// Files move when a reason comes up to clear the results.
class ClearedSessionsTest : public DashboardTest, public testing::WithParamInterface<Cause> {
protected:
    ClearedSessionsTest()
        : DashboardTest("home/.cache/pip/wheel size=64K age=90d\n"
                        "home/.cache/thumbnails/large/t.png size=16K age=90d\n"
                        "home/Downloads/report.pdf size=2M age=90d\n"
                        "home/Downloads/film.mov size=3M age=90d\n")
    {
        scanForCleanup();
        dashboard->scanInsights();
        settle();
    }

    /// Clears both results by way of a session that does nothing meanwhile.
    void strike()
    {
        switch (GetParam()) {
        case Cause::anotherMode:
            EXPECT_TRUE(preferences->setScanMode(CleanerCore::CleanupScanMode::aggressive));
            return;
        case Cause::aModeFromElsewhere: {
            Platform::FileUserDefaults other(fileManager, stored.fileURL());
            EXPECT_TRUE(other.set(DashboardPreferences::scanModeDefaultsKey, std::string("aggressive")));
            stored.refresh();
            loop.handleEvents();
            return;
        }
        case Cause::noAccessAnyMore:
            isDirectDistribution = false;
            if (dashboard->cleaner().isBusy()) {
                dashboard->scanInsights();
            } else {
                dashboard->scanCleanup();
            }
            return;
        }
    }
    /// The reason comes up once the first item was moved.
    void settleStruckOnce()
    {
        trash.behaviour.afterMove = [this] {
            if (!std::exchange(m_hasStruck, true)) {
                strike();
            }
        };
        settle();
        EXPECT_TRUE(m_hasStruck);
    }

    void cleanup()
    {
        dashboard->cleaner().selectAllCandidates();
        dashboard->requestCleanSelected();
        dashboard->cleanSelected();
    }
    void cleanDownloads()
    {
        dashboard->insights().selectAll(MacInsightFileSection::downloads);
        dashboard->requestInsightClean(MacInsightFileSection::downloads);
        dashboard->cleanSelectedInsight();
    }

    void expectCleared()
    {
        EXPECT_EQ(dashboard->cleaner().phase(), CleanerViewModel::Phase::idle);
        EXPECT_THAT(dashboard->cleaner().report().candidates, IsEmpty());
        EXPECT_FALSE(dashboard->cleaner().lastCleanResult());
        EXPECT_EQ(dashboard->insights().phase(), MacInsightsViewModel::Phase::idle);
        EXPECT_THAT(dashboard->insights().report().downloadFiles, IsEmpty());
        EXPECT_FALSE(dashboard->insights().lastCleanResult());
    }
    void expectStoppedAfterOne(const CleanupAuditEntry& entry, CleanupAuditOperation operation)
    {
        EXPECT_EQ(entry.operation, operation);
        EXPECT_EQ(entry.requestedItemCount, 2);
        EXPECT_EQ(entry.succeededItemCount, 1);
        EXPECT_TRUE(entry.wasCancelled);
        const CleanerCore::CleanupAuditStore log(
            fileManager, CleanerCore::CleanupAuditStore::defaultFileURL(environment));
        EXPECT_THAT(log.loadEntries(), testing::Contains(testing::Field(&CleanupAuditEntry::id, entry.id)));
    }

private:
    bool m_hasStruck = false;
};

TEST_P(ClearedSessionsTest, EndACleanOfTheReviewAndRecordIt)
{
    cleanup();
    settleStruckOnce();
    EXPECT_EQ(trashedCount(), 1);
    ASSERT_THAT(dashboard->auditEntries(), SizeIs(1));
    expectStoppedAfterOne(dashboard->auditEntries().front(), CleanupAuditOperation::clean);
    expectCleared();
}

TEST_P(ClearedSessionsTest, EndACleanOfAnInsightSectionAndRecordIt)
{
    cleanDownloads();
    settleStruckOnce();
    EXPECT_EQ(trashedCount(), 1);
    ASSERT_THAT(dashboard->auditEntries(), SizeIs(1));
    expectStoppedAfterOne(dashboard->auditEntries().front(), CleanupAuditOperation::clean);
    expectCleared();
}

TEST_P(ClearedSessionsTest, EndARestoreAndRecordIt)
{
    cleanup();
    settle();
    ASSERT_EQ(trashedCount(), 2);
    std::set<std::string, std::less<>> ids;
    for (const auto& item : dashboard->cleaner().lastCleanResult()->cleanedItems) {
        ids.insert(item.candidate.id);
    }
    now = now.addingSeconds(60);
    dashboard->setRestoreCenterSelectedIDs(std::move(ids));
    dashboard->restoreSelectedTrashMoves();
    settleStruckOnce();
    EXPECT_EQ(trashedCount(), 1);
    ASSERT_THAT(dashboard->auditEntries(), SizeIs(2));
    expectStoppedAfterOne(dashboard->auditEntries().front(), CleanupAuditOperation::restore);
    expectCleared();
}

/// The work is done by then, and its account on the way.
TEST_P(ClearedSessionsTest, RecordACleanWhoseResultIsOnTheWay)
{
    cleanup();
    executor.runOne();
    strike();
    settle();
    EXPECT_EQ(trashedCount(), 2);
    ASSERT_THAT(dashboard->auditEntries(), SizeIs(1));
    EXPECT_EQ(dashboard->auditEntries().front().succeededItemCount, 2);
    expectCleared();
}

INSTANTIATE_TEST_SUITE_P(Causes, ClearedSessionsTest,
    testing::Values(Cause::anotherMode, Cause::aModeFromElsewhere, Cause::noAccessAnyMore), [](const auto& cause) {
        switch (cause.param) {
        case Cause::anotherMode:
            return "ByAnotherMode";
        case Cause::aModeFromElsewhere:
            return "ByAModeFromElsewhere";
        case Cause::noAccessAnyMore:
            return "ByAScanWithoutAccess";
        }
        return "";
    });

} // namespace DashboardTests
