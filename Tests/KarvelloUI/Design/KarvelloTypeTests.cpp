#include "KarvelloUI/Design/KarvelloFontSpec.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>

namespace KarvelloUI {

namespace {

using KarvelloDesign::fontSpec;
using KarvelloDesign::scaledFontSize;
using Scale = KarvelloTextScale;
using Style = KarvelloTextStyle;
using System = DynamicTypeSize;

} // namespace

TEST(KarvelloTextScale, IsStoredByTheNameOfItsCase)
{
    EXPECT_EQ(KarvelloTextScaleKey::storageKey, "karvello.textScale");
    EXPECT_EQ(KarvelloTextScaleKey::defaultValue, Scale::standard);
    EXPECT_EQ(Platform::rawValue(Scale::standard), "standard");
    EXPECT_EQ(Platform::rawValue(Scale::large), "large");
    EXPECT_EQ(Platform::rawValue(Scale::extraLarge), "extraLarge");
    EXPECT_EQ(Platform::fromRawValue<Scale>("Large"), std::nullopt);
}

TEST(KarvelloTextScale, MultipliesByItsFactor)
{
    EXPECT_EQ(scaledFontSize(100, Scale::standard, System::large), 100);
    EXPECT_EQ(scaledFontSize(100, Scale::large, System::large), 116);
    EXPECT_EQ(scaledFontSize(100, Scale::extraLarge, System::large), 138);
}

TEST(DynamicTypeSize, MultipliesByItsFactor)
{
    EXPECT_EQ(scaledFontSize(100, Scale::standard, System::xSmall), 90);
    EXPECT_EQ(scaledFontSize(100, Scale::standard, System::small), 95);
    EXPECT_EQ(scaledFontSize(100, Scale::standard, System::medium), 98);
    EXPECT_EQ(scaledFontSize(100, Scale::standard, System::xLarge), 108);
    EXPECT_EQ(scaledFontSize(100, Scale::standard, System::xxLarge), 116);
    EXPECT_EQ(scaledFontSize(100, Scale::standard, System::xxxLarge), 124);
    EXPECT_EQ(scaledFontSize(100, Scale::standard, System::accessibility1), 132);
    EXPECT_EQ(scaledFontSize(100, Scale::standard, System::accessibility2), 145);
    EXPECT_EQ(scaledFontSize(100, Scale::standard, System::accessibility3), 158);
    EXPECT_EQ(scaledFontSize(100, Scale::standard, System::accessibility4), 172);
    EXPECT_EQ(scaledFontSize(100, Scale::standard, System::accessibility5), 185);
}

TEST(DynamicTypeSize, IsTheStepClosestToTheSystemsFactor)
{
    EXPECT_EQ(closestDynamicTypeSize(1), System::large);
    EXPECT_EQ(closestDynamicTypeSize(1.25), System::xxxLarge);
    EXPECT_EQ(closestDynamicTypeSize(1.5), System::accessibility2);
    EXPECT_EQ(closestDynamicTypeSize(0.97), System::medium);
    EXPECT_EQ(closestDynamicTypeSize(0), System::xSmall);
    EXPECT_EQ(closestDynamicTypeSize(3), System::accessibility5);
    EXPECT_EQ(closestDynamicTypeSize(std::numeric_limits<double>::quiet_NaN()), System::large);
    EXPECT_EQ(closestDynamicTypeSize(std::numeric_limits<double>::infinity()), System::large);
}

TEST(KarvelloFontSpec, IsTwentySixPointsForTenAtTheLargestOfBoth)
{
    EXPECT_EQ(scaledFontSize(10, Scale::extraLarge, System::accessibility5), 26);
}

TEST(KarvelloFontSpec, RoundsToTheNearestWholeSize)
{
    EXPECT_EQ(scaledFontSize(12.4, Scale::standard, System::large), 12);
    EXPECT_EQ(scaledFontSize(12.5, Scale::standard, System::large), 13);
    // 11 x 1.16 = 12.76, and 13 x 0.95 = 12.35.
    EXPECT_EQ(scaledFontSize(11, Scale::large, System::large), 13);
    EXPECT_EQ(scaledFontSize(13, Scale::standard, System::small), 12);
}

TEST(KarvelloFontSpec, IsNeverBelowOnePoint)
{
    EXPECT_EQ(scaledFontSize(0.4, Scale::standard, System::large), 1);
    EXPECT_EQ(scaledFontSize(0, Scale::extraLarge, System::accessibility5), 1);
    EXPECT_EQ(scaledFontSize(-20, Scale::standard, System::large), 1);
    EXPECT_EQ(scaledFontSize(std::numeric_limits<double>::quiet_NaN(), Scale::standard, System::large), 1);
    EXPECT_EQ(scaledFontSize(std::numeric_limits<double>::infinity(), Scale::standard, System::large), 10'000);
}

TEST(KarvelloFontSpec, GetsSmallerFromFigureToLabel)
{
    const auto inOrder = {Style::display, Style::onboardingTitle, Style::title, Style::dialogTitle, Style::heading,
        Style::body, Style::small, Style::label};
    double size = 100;
    for (const Style style : inOrder) {
        EXPECT_LT(fontSpec(style).size, size);
        size = fontSpec(style).size;
        EXPECT_GE(KarvelloDesign::lineHeightRatio(style), 1.09);
        EXPECT_LE(KarvelloDesign::lineHeightRatio(style), 1.6);
    }
    EXPECT_EQ(fontSpec(Style::body), (KarvelloFontSpec{.size = 13, .weight = KarvelloFontWeight::regular}));
    EXPECT_EQ(fontSpec(Style::onboardingBody), (KarvelloFontSpec{.size = 15, .weight = KarvelloFontWeight::regular}));
    EXPECT_EQ(fontSpec(Style::label), (KarvelloFontSpec{.size = 11, .weight = KarvelloFontWeight::medium}));
    EXPECT_DOUBLE_EQ(KarvelloDesign::lineHeightRatio(Style::heading), 20.0 / 15);
}

} // namespace KarvelloUI
