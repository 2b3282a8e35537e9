#include "Tests/KarvelloUI/Controls/ControlsFixture.h"

#include <QMetaProperty>
#include <QSet>

namespace KarvelloUI {

namespace {

QColor colorNamed(const DesignTokens& design, std::string_view name)
{
    return design.property(std::string(name).c_str()).value<QColor>();
}

} // namespace

TEST(DesignTokens, HasEveryColourOfThePaletteUnderItsNameInBothSchemes)
{
    DesignTokens design(nullptr);
    for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
        design.setPlatformScheme(scheme);
        for (const auto& field : KarvelloDesign::kPaletteFields) {
            EXPECT_EQ(colorNamed(design, field.name), qtColor(KarvelloDesign::palette(scheme).*field.color))
                << field.name;
        }
    }
}

TEST(DesignTokens, FollowsThePlatformUntilTheUserForcesAScheme)
{
    DesignTokens design(nullptr);
    QSignalSpy changes(&design, &DesignPalette::paletteChanged);
    design.setPlatformScheme(ColorScheme::dark);
    EXPECT_TRUE(design.isDark());
    design.setAppearanceMode(KarvelloAppearanceMode::light);
    EXPECT_FALSE(design.isDark());
    design.setPlatformScheme(ColorScheme::light);
    design.setPlatformScheme(ColorScheme::dark);
    EXPECT_FALSE(design.isDark());
    design.setAppearanceMode(KarvelloAppearanceMode::system);
    EXPECT_TRUE(design.isDark());
    EXPECT_EQ(changes.count(), 3);
}

TEST(DesignTokens, HasTheColoursOfEachKindOfPill)
{
    const DesignTokens design(nullptr);
    const auto& palette = KarvelloDesign::lightPalette;
    EXPECT_EQ(design.pillForegrounds()[DesignTokens::NeutralPill], qtColor(palette.ink2));
    EXPECT_EQ(design.pillStrokes()[DesignTokens::NeutralPill], qtColor(palette.line));
    EXPECT_EQ(design.pillForegrounds()[DesignTokens::ReviewPill], qtColor(palette.review));
    EXPECT_EQ(design.pillBackgrounds()[DesignTokens::CautionPill], qtColor(palette.cautionSoft));
    EXPECT_EQ(design.pillBackgrounds()[DesignTokens::SafePill], qtColor(palette.safeSoft));
    EXPECT_EQ(design.pillStrokes()[DesignTokens::AccentPill].alpha(), 0);
}

TEST(DesignTokens, ScalesEveryTextStyleByBothScales)
{
    DesignTokens design(nullptr);
    QSignalSpy changes(design.body(), &DesignTextStyle::changed);
    EXPECT_EQ(design.body()->font().pixelSize(), 13);
    EXPECT_EQ(design.display()->font().pixelSize(), 44);
    EXPECT_EQ(design.textFactor(), 1);
    design.setTextEnvironment(
        {.scale = KarvelloTextScale::extraLarge, .dynamicTypeSize = DynamicTypeSize::accessibility2});
    design.setTextEnvironment(
        {.scale = KarvelloTextScale::extraLarge, .dynamicTypeSize = DynamicTypeSize::accessibility2});
    EXPECT_EQ(design.body()->font().pixelSize(), 26);
    EXPECT_EQ(design.label()->font().pixelSize(), 22);
    EXPECT_DOUBLE_EQ(design.textFactor(), 1.38 * 1.45);
    EXPECT_EQ(changes.count(), 1);
}

TEST(DesignTokens, WeighsTextsByTheirStyle)
{
    const DesignTokens design(nullptr);
    EXPECT_EQ(design.title()->font().weight(), QFont::DemiBold);
    EXPECT_EQ(design.body()->font().weight(), QFont::Normal);
    EXPECT_EQ(design.body()->medium().weight(), QFont::Medium);
    EXPECT_EQ(design.body()->strong().weight(), QFont::DemiBold);
    EXPECT_EQ(design.label()->font().weight(), QFont::Medium);
}

TEST(DesignTokens, GivesCJKMoreRoomAndNoTighterLetters)
{
    DesignTokens design(nullptr);
    EXPECT_EQ(design.title()->lineHeight(), 28);
    EXPECT_EQ(design.body()->lineHeight(), 18);
    EXPECT_LT(design.title()->font().letterSpacing(), 0);
    design.setTextEnvironment({.script = TextScript::cjk});
    EXPECT_EQ(design.title()->lineHeight(), 32);
    EXPECT_EQ(design.body()->lineHeight(), 19);
    EXPECT_EQ(design.title()->font().letterSpacing(), 0);
}

TEST(DesignTokens, MovesNothingWhereMotionIsUnwanted)
{
    DesignTokens design(nullptr);
    EXPECT_EQ(design.shortDuration(), 120);
    EXPECT_EQ(design.expandDuration(), 160);
    design.setReducedMotion(true);
    EXPECT_EQ(design.shortDuration(), 0);
    EXPECT_EQ(design.expandDuration(), 0);
}

TEST(DesignTokens, KeepsAllDistancesOnTheGrid)
{
    const DesignTokens design(nullptr);
    QSet<int> distances;
    for (int index = 0; index < design.metaObject()->propertyCount(); ++index) {
        const QMetaProperty property = design.metaObject()->property(index);
        if (QByteArray(property.name()).startsWith("spacing")) {
            const int distance = property.read(&design).toInt();
            EXPECT_EQ(distance, QByteArray(property.name()).sliced(7).toInt());
            EXPECT_EQ(distance % 4, 0);
            distances.insert(distance);
        }
    }
    EXPECT_EQ(distances, (QSet<int>{4, 8, 12, 16, 20, 24, 32}));
}

TEST(DesignTokens, SpeaksOnlyThePartsThatThereAre)
{
    const auto part = [](const char* text) { return QString::fromLatin1(text); };
    EXPECT_EQ(DesignTokens::spoken({part("pip"), QString(), part("1.27 GB"), part("")}), part("pip, 1.27 GB"));
    EXPECT_EQ(DesignTokens::spoken({}), QString());
}

using DesignInWindow = Controls;

TEST_F(DesignInWindow, ChangesWhatIsBoundToIt)
{
    show("KarvelloText { objectName: 'text'; text: 'a'; color: KarvelloDesign.ink }");
    auto* const text = find("text");
    EXPECT_EQ(text->property("color").value<QColor>(), qtColor(KarvelloDesign::lightPalette.ink));
    m_design.setAppearanceMode(KarvelloAppearanceMode::dark);
    EXPECT_EQ(text->property("color").value<QColor>(), qtColor(KarvelloDesign::darkPalette.ink));
    const qreal height = text->implicitHeight();
    m_design.setTextEnvironment({.scale = KarvelloTextScale::extraLarge});
    EXPECT_GT(text->implicitHeight(), height);
}

TEST_F(DesignInWindow, CannotBeWrittenFromAScreen)
{
    for (int index = 0; index < m_design.metaObject()->propertyCount(); ++index) {
        const QMetaProperty property = m_design.metaObject()->property(index);
        EXPECT_TRUE(!property.isWritable() || QByteArray(property.name()) == "objectName") << property.name();
    }
}

} // namespace KarvelloUI
