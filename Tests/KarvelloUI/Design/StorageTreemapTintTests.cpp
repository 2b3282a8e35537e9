#include "KarvelloUI/Design/StorageTreemapTint.h"
#include "Tests/KarvelloUI/Design/TreemapFixture.h"

#include <gtest/gtest.h>

#include <limits>

namespace KarvelloUI {

namespace {

using KarvelloDesign::darkPalette;
using KarvelloDesign::lightPalette;

Color tintOf(std::int64_t size, std::int64_t maxBytes)
{
    return tint(TreemapFixture::item(0, size), maxBytes, lightPalette);
}

} // namespace

TEST(StorageTreemapTint, IsReviewAtExactlyThreeQuarters)
{
    EXPECT_EQ(tintOf(75, 100), lightPalette.review);
    EXPECT_EQ(tintOf(100, 100), lightPalette.review);
    EXPECT_EQ(tintOf(749, 1000), lightPalette.caution);
}

TEST(StorageTreemapTint, ChangesAtEachMarkAndNotBefore)
{
    EXPECT_EQ(tintOf(45, 100), lightPalette.caution);
    EXPECT_EQ(tintOf(449, 1000), lightPalette.heatmapMid);
    EXPECT_EQ(tintOf(20, 100), lightPalette.heatmapMid);
    EXPECT_EQ(tintOf(199, 1000), lightPalette.accent);
    EXPECT_EQ(tintOf(6, 100), lightPalette.accent);
    EXPECT_EQ(tintOf(59, 1000), lightPalette.safe);
    EXPECT_EQ(tintOf(0, 100), lightPalette.safe);
}

TEST(StorageTreemapTint, IsSafeWithoutALargestItem)
{
    EXPECT_EQ(tintOf(100, 0), lightPalette.safe);
    EXPECT_EQ(tintOf(100, -5), lightPalette.safe);
    EXPECT_EQ(tintOf(1, 1), lightPalette.review);
}

TEST(StorageTreemapTint, IsSafeForAShareThatIsNotANumber)
{
    EXPECT_EQ(tintOfShare(std::numeric_limits<double>::quiet_NaN(), darkPalette), darkPalette.safe);
    EXPECT_EQ(tintOfShare(std::numeric_limits<double>::infinity(), darkPalette), darkPalette.review);
    EXPECT_EQ(tintOfShare(-1, darkPalette), darkPalette.safe);
}

TEST(StorageTreemapTint, ComesFromThePaletteThatIsAskedFor)
{
    // In the light palette `accent` and `safe` are one colour; each palette is asked for the right one all the same.
    KarvelloDesign::Palette palette = darkPalette;
    palette.safe = Color::fromRGB(0x123456);
    EXPECT_EQ(tintOfShare(0.06, palette), darkPalette.accent);
    EXPECT_EQ(tintOfShare(0.059, palette), palette.safe);
    EXPECT_EQ(tintOfShare(0.2, palette), darkPalette.heatmapMid);
    EXPECT_EQ(tintOfShare(0.45, palette), darkPalette.caution);
    EXPECT_EQ(tintOfShare(0.75, palette), darkPalette.review);
}

} // namespace KarvelloUI
