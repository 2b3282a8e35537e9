#include "KarvelloUI/Stores/CleanupReviewCadence.h"

#include <gtest/gtest.h>

namespace KarvelloUI {

namespace {

using Cadence = CleanupReviewCadence;
using Kind = CleanupReviewCadenceStatusKind;

constexpr Platform::Date kNow{800'000'000};
constexpr double kDay = 86'400;

CleanupReviewCadenceStatus reviewedBefore(Cadence cadence, double seconds)
{
    return reviewStatus(cadence, kNow.addingSeconds(-seconds), kNow);
}

} // namespace

TEST(CleanupReviewCadence, IsDisabledWhenOffWhateverTheLastReview)
{
    EXPECT_EQ(reviewedBefore(Cadence::off, 8 * kDay), CleanupReviewCadenceStatus{.kind = Kind::disabled});
    EXPECT_EQ(reviewStatus(Cadence::off, std::nullopt, kNow).kind, Kind::disabled);
}

TEST(CleanupReviewCadence, IsNotStartedBeforeTheFirstReview)
{
    EXPECT_EQ(reviewStatus(Cadence::weekly, std::nullopt, kNow), CleanupReviewCadenceStatus{.kind = Kind::notStarted});
}

TEST(CleanupReviewCadence, CountsABegunDayAsOne)
{
    const CleanupReviewCadenceStatus tomorrow{
        .kind = Kind::upcoming, .nextReviewAt = kNow.addingSeconds(3600), .daysUntilNextReview = 1};
    EXPECT_EQ(reviewedBefore(Cadence::weekly, 7 * kDay - 3600), tomorrow);
    EXPECT_EQ(reviewedBefore(Cadence::monthly, 28 * kDay - 1).daysUntilNextReview, 3);
    EXPECT_EQ(reviewedBefore(Cadence::monthly, 28 * kDay).daysUntilNextReview, 2);
}

TEST(CleanupReviewCadence, IsDueAtTheVeryMoment)
{
    EXPECT_EQ(reviewedBefore(Cadence::weekly, 7 * kDay),
        (CleanupReviewCadenceStatus{.kind = Kind::due, .nextReviewAt = kNow, .daysUntilNextReview = 0}));
    EXPECT_EQ(reviewedBefore(Cadence::monthly, 30 * kDay).kind, Kind::due);
    EXPECT_EQ(reviewedBefore(Cadence::monthly, 30 * kDay - 1).kind, Kind::upcoming);
}

TEST(CleanupReviewCadence, SurvivesADateFarAhead)
{
    EXPECT_EQ(reviewedBefore(Cadence::weekly, -1e300).daysUntilNextReview, 1'000'000'000);
}

} // namespace KarvelloUI
