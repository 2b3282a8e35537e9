#include "CleanerCore/Cleaning/CleanupStorageImpactReport.h"

#include "Tests/CleanerCore/Audit/AuditFixture.h"

namespace CleanerCore {

namespace {

using namespace AuditTests;

CleanupStorageImpactReport impact(std::optional<CleaningMode> mode, std::int64_t expected, std::int64_t affected)
{
    return CleanupStorageImpactReport({.mode = mode, .expectedBytes = expected, .affectedBytes = affected});
}

} // namespace

TEST(CleanupStorageImpactReport, TakesOverAnEntryOfAClean)
{
    auto logged = entry();
    logged.source = CleanupAuditSource::macInsights;
    logged.requestedItemCount = 9;
    logged.succeededItemCount = 5;
    logged.failedItemCount = 4;
    logged.requestedBytes = 100;
    logged.affectedBytes = 60;
    logged.wasCancelled = true;
    const auto made = CleanupStorageImpactReport::fromAuditEntry(logged);
    EXPECT_EQ(made,
        CleanupStorageImpactReport({.source = CleanupAuditSource::macInsights,
            .mode = CleaningMode::moveToTrash,
            .occurredAt = logged.occurredAt,
            .requestedItemCount = 9,
            .succeededItemCount = 5,
            .failedItemCount = 4,
            .expectedBytes = 100,
            .affectedBytes = 60,
            .wasCancelled = true}));
}

TEST(CleanupStorageImpactReport, IsNotMadeFromARestore)
{
    auto restored = entry();
    restored.operation = CleanupAuditOperation::restore;
    EXPECT_EQ(CleanupStorageImpactReport::fromAuditEntry(restored), std::nullopt);
}

TEST(CleanupStorageImpactReport, RaisesNegativeFiguresToNothing)
{
    const CleanupStorageImpactReport raised({.requestedItemCount = -1,
        .succeededItemCount = -2,
        .failedItemCount = -3,
        .expectedBytes = -4,
        .affectedBytes = -5});
    EXPECT_EQ(raised, CleanupStorageImpactReport(CleanupStorageImpactReport::Fields()));
    auto logged = entry();
    logged.requestedBytes = -1;
    logged.affectedBytes = -1;
    EXPECT_EQ(CleanupStorageImpactReport::fromAuditEntry(logged)->outcomeBytes(), 0);
}

TEST(CleanupStorageImpactReport, ClaimsNoRecoveryForAMoveToTheTrash)
{
    const auto moved = impact(CleaningMode::moveToTrash, 100, 60);
    EXPECT_EQ(moved.outcomeBytes(), 60);
    EXPECT_EQ(moved.movedToTrashBytes(), 60);
    EXPECT_EQ(moved.pendingRecoveryBytes(), moved.movedToTrashBytes());
    EXPECT_EQ(moved.storageRecoveredBytes(), 0);
    EXPECT_EQ(moved.actualRecoveredBytes(), 0);
}

TEST(CleanupStorageImpactReport, ClaimsTheBytesOfAPermanentDeletion)
{
    const auto deleted = impact(CleaningMode::deletePermanently, 100, 60);
    EXPECT_EQ(deleted.movedToTrashBytes(), 0);
    EXPECT_EQ(deleted.pendingRecoveryBytes(), 0);
    EXPECT_EQ(deleted.storageRecoveredBytes(), 60);
    EXPECT_EQ(deleted.actualRecoveredBytes(), 60);
}

TEST(CleanupStorageImpactReport, ClaimsNothingWithoutAMode)
{
    const auto unknown = impact(std::nullopt, 100, 60);
    EXPECT_EQ(unknown.outcomeBytes(), 60);
    EXPECT_EQ(unknown.movedToTrashBytes(), 0);
    EXPECT_EQ(unknown.pendingRecoveryBytes(), 0);
    EXPECT_EQ(unknown.storageRecoveredBytes(), 0);
    EXPECT_EQ(unknown.actualRecoveredBytes(), 0);
}

TEST(CleanupStorageImpactReport, TellsHowMuchOfTheExpectedCame)
{
    EXPECT_EQ(impact(CleaningMode::moveToTrash, 100, 60).remainingExpectedBytes(), 40);
    EXPECT_EQ(impact(CleaningMode::moveToTrash, 100, 25).outcomeFraction(), 0.25);
    EXPECT_EQ(impact(CleaningMode::moveToTrash, 100, 0).outcomeFraction(), 0.0);
}

TEST(CleanupStorageImpactReport, HasNoFractionOfNothing)
{
    EXPECT_EQ(impact(CleaningMode::moveToTrash, 0, 60).outcomeFraction(), std::nullopt);
}

TEST(CleanupStorageImpactReport, DoesNotPassTheWhole)
{
    const auto more = impact(CleaningMode::moveToTrash, 100, 160);
    EXPECT_EQ(more.outcomeFraction(), 1.0);
    EXPECT_EQ(more.remainingExpectedBytes(), 0);
}

} // namespace CleanerCore
