#include "KarvelloUI/Stores/CleanupReviewCadence.h"

#include "Tests/KarvelloUI/Stores/StoresFixture.h"
#include "Tests/Support/Days.h"

#include <gtest/gtest.h>

namespace KarvelloUI {

namespace {

using Cadence = CleanupReviewCadence;
using StatusKind = CleanupReviewCadenceStatusKind;

using StoresTests::kNow;
using TestSupport::kDay;

CleanupReviewCadenceStatus reviewedBefore(Cadence cadence, double seconds)
{
    return reviewStatus(cadence, kNow.addingSeconds(-seconds), kNow);
}

} // namespace

TEST(CleanupReviewCadence, IsDisabledWhenOffWhateverTheLastReview)
{
    EXPECT_EQ(reviewedBefore(Cadence::off, 8 * kDay), CleanupReviewCadenceStatus{.kind = StatusKind::disabled});
    EXPECT_EQ(reviewStatus(Cadence::off, std::nullopt, kNow).kind, StatusKind::disabled);
}

TEST(CleanupReviewCadence, IsNotStartedBeforeTheFirstReview)
{
    EXPECT_EQ(
        reviewStatus(Cadence::weekly, std::nullopt, kNow), CleanupReviewCadenceStatus{.kind = StatusKind::notStarted});
}

TEST(CleanupReviewCadence, CountsABegunDayAsOne)
{
    const CleanupReviewCadenceStatus tomorrow{
        .kind = StatusKind::upcoming, .nextReviewAt = kNow.addingSeconds(3600), .daysUntilNextReview = 1};
    EXPECT_EQ(reviewedBefore(Cadence::weekly, 7 * kDay - 3600), tomorrow);
    EXPECT_EQ(reviewedBefore(Cadence::monthly, 28 * kDay - 1).daysUntilNextReview, 3);
    EXPECT_EQ(reviewedBefore(Cadence::monthly, 28 * kDay).daysUntilNextReview, 2);
}

TEST(CleanupReviewCadence, IsDueAtTheVeryMoment)
{
    EXPECT_EQ(reviewedBefore(Cadence::weekly, 7 * kDay),
        (CleanupReviewCadenceStatus{.kind = StatusKind::due, .nextReviewAt = kNow, .daysUntilNextReview = 0}));
    EXPECT_EQ(reviewedBefore(Cadence::monthly, 30 * kDay).kind, StatusKind::due);
    EXPECT_EQ(reviewedBefore(Cadence::monthly, 30 * kDay - 1).kind, StatusKind::upcoming);
}

TEST(CleanupReviewCadence, SurvivesADateFarAhead)
{
    EXPECT_EQ(reviewedBefore(Cadence::weekly, -1e300).daysUntilNextReview, 1'000'000'000);
}

} // namespace KarvelloUI
