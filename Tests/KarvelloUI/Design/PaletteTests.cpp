#include "KarvelloUI/Design/Palette.h"
#include "Tests/KarvelloUI/Design/Contrast.h"

#include <gtest/gtest.h>

#include <fmt/format.h>
#include <set>
#include <string>
#include <vector>

namespace KarvelloUI {

namespace {

using KarvelloDesign::darkPalette;
using KarvelloDesign::kPaletteFields;
using KarvelloDesign::lightPalette;
using KarvelloDesign::Palette;

struct PublishedColors {
    std::string_view name;
    std::string_view light;
    std::string_view dark;
};

constexpr std::array<PublishedColors, 26> kPublished{{
    {"background", "EEF3F1", "081310"},
    {"elevated1", "FFFFFF", "14221F"},
    {"elevated2", "F8FBFA", "111F1C"},
    {"elevated3", "E8F0EE", "1A2B27"},
    {"sidebar", "F4F9F7", "0C1714"},
    {"line", "D8E1DD", "31443E"},
    {"lineStrong", "B7C8C0", "4B625A"},
    {"lineSoft", "E8F0EE", "20332E"},
    {"ink", "12201D", "FFFFFF"},
    {"ink2", "354540", "D1E1DA"},
    {"ink3", "56645E", "A9BBB3"},
    {"ink4", "606E68", "8FA099"},
    {"accent", "0F7D54", "51E29E"},
    {"accentSoft", "DDF8EC", "173F30"},
    {"accentDeep", "0B6644", "18B776"},
    {"accentForeground", "FFFFFF", "081310"},
    {"safe", "0F7D54", "51E29E"},
    {"safeSoft", "DFF1E5", "173F30"},
    {"caution", "A06A14", "F6BD60"},
    {"cautionSoft", "FFF3DC", "3F3019"},
    {"review", "B83A3A", "FF8B8B"},
    {"reviewSoft", "FFE8E8", "432222"},
    {"heatmapMid", "3678FF", "789DF5"},
    {"heatmapInvertedInk", "FFFFFF", "000000"},
    {"heatmapInvertedInk2", "F2F4F8", "080808"},
    {"heatmapInvertedInk3", "E6EBF3", "111111"},
}};

std::string hex(const Color& color)
{
    return fmt::format("{:02X}{:02X}{:02X}", color.red, color.green, color.blue);
}

/// A text on a ground that it is shown on.
struct Pair {
    std::string_view text;
    std::string_view ground;
};

/// All pairs of text and plain ground that the screens use.
std::vector<Pair> textPairs()
{
    std::vector<Pair> pairs;
    for (const std::string_view ground : {"background", "elevated1", "elevated2", "elevated3", "sidebar"}) {
        for (const std::string_view text : {"ink", "ink2", "ink3", "ink4"}) {
            pairs.push_back({.text = text, .ground = ground});
        }
    }
    for (const std::string_view ground : {"accentSoft", "safeSoft", "cautionSoft", "reviewSoft"}) {
        pairs.push_back({.text = "ink", .ground = ground});
        pairs.push_back({.text = "ink2", .ground = ground});
    }
    // Links and warning words in rows; buttons; pills.
    for (const std::string_view ground : {"background", "elevated1", "elevated2"}) {
        pairs.push_back({.text = "accent", .ground = ground});
    }
    pairs.push_back({.text = "caution", .ground = "elevated1"});
    pairs.push_back({.text = "caution", .ground = "elevated2"});
    pairs.push_back({.text = "review", .ground = "elevated1"});
    pairs.push_back({.text = "accentForeground", .ground = "accent"});
    pairs.push_back({.text = "accentForeground", .ground = "accentDeep"});
    pairs.push_back({.text = "accent", .ground = "accentSoft"});
    pairs.push_back({.text = "safe", .ground = "safeSoft"});
    pairs.push_back({.text = "caution", .ground = "cautionSoft"});
    pairs.push_back({.text = "review", .ground = "reviewSoft"});
    // Selected cells of the size map.
    for (const std::string_view ground : {"review", "caution", "heatmapMid", "accent", "safe"}) {
        for (const std::string_view text : {"heatmapInvertedInk", "heatmapInvertedInk2", "heatmapInvertedInk3"}) {
            pairs.push_back({.text = text, .ground = ground});
        }
    }
    return pairs;
}

Color named(const Palette& palette, std::string_view name)
{
    const auto* const field = std::ranges::find(kPaletteFields, name, &KarvelloDesign::PaletteField::name);
    return field == kPaletteFields.end() ? Color{} : palette.*field->color;
}

/// The pairs below 4.5 to 1, each with its contrast.
std::set<std::string> pairsBelow(const Palette& palette)
{
    std::set<std::string> found;
    for (const auto& [text, ground] : textPairs()) {
        const double contrast = contrastRatio(named(palette, text), named(palette, ground));
        if (contrast < kReadableContrast) {
            found.insert(fmt::format("{} on {} {:.2f}", text, ground, contrast));
        }
    }
    return found;
}

/// The same for the size map's plain cells: a tint over `elevated1`, by how much of it.
std::set<std::string> cellsBelow(const Palette& palette, std::initializer_list<double> opacities)
{
    std::set<std::string> found;
    for (const double opacity : opacities) {
        for (const std::string_view tint : {"review", "caution", "heatmapMid", "accent", "safe"}) {
            const Color ground = blended(named(palette, tint), palette.elevated1, opacity);
            for (const std::string_view text : {"ink", "ink2"}) {
                if (contrastRatio(named(palette, text), ground) < kReadableContrast) {
                    found.insert(fmt::format("{} on {} at {}", text, tint, opacity));
                }
            }
        }
    }
    return found;
}

} // namespace

TEST(Palette, HasThePublishedColoursUnderTheirNames)
{
    ASSERT_EQ(kPaletteFields.size(), kPublished.size());
    for (std::size_t index = 0; index < kPublished.size(); ++index) {
        const auto& [name, light, dark] = kPublished[index];
        EXPECT_EQ(kPaletteFields[index].name, name);
        EXPECT_EQ(hex(lightPalette.*kPaletteFields[index].color), light) << name;
        EXPECT_EQ(hex(darkPalette.*kPaletteFields[index].color), dark) << name;
    }
}

TEST(Palette, NamesEachOfItsColoursOnce)
{
    // A palette that differs in every field: had two names the same one, a colour would come twice.
    Palette palette;
    std::uint8_t number = 0;
    for (const auto& field : kPaletteFields) {
        palette.*field.color = Color{.red = ++number};
    }
    number = 0;
    for (const auto& field : kPaletteFields) {
        EXPECT_EQ((palette.*field.color).red, ++number) << field.name;
    }
    EXPECT_EQ(sizeof(Palette), kPaletteFields.size() * sizeof(Color));
}

TEST(Palette, IsThatOfTheScheme)
{
    EXPECT_EQ(KarvelloDesign::palette(ColorScheme::light), lightPalette);
    EXPECT_EQ(KarvelloDesign::palette(ColorScheme::dark), darkPalette);
}

TEST(Palette, ContrastFollowsItsDefinition)
{
    const Color black = Color::fromRGB(0x000000);
    const Color white = Color::fromRGB(0xFFFFFF);
    EXPECT_DOUBLE_EQ(contrastRatio(black, white), 21);
    EXPECT_DOUBLE_EQ(contrastRatio(white, black), 21);
    EXPECT_DOUBLE_EQ(contrastRatio(white, white), 1);
    // The two greys on either side of the mark, as every contrast checker tells them.
    EXPECT_NEAR(contrastRatio(Color::fromRGB(0x767676), white), 4.54, 0.005);
    EXPECT_NEAR(contrastRatio(Color::fromRGB(0x777777), white), 4.48, 0.005);
    EXPECT_EQ(blended(black, white, 0.5), Color::fromRGB(0x808080));
}

// Exactly these: a pair that gets better is as much of a change as one that gets worse.
TEST(Palette, HasExactlyThesePairsOfTextAndGroundBelowReadableContrast)
{
    const std::set<std::string> inLight{
        // Pills: their word stands beside them a second time.
        "safe on safeSoft 4.37",
        "caution on cautionSoft 4.18",
        // A word of warning in a row under the pointer.
        "caution on elevated2 4.42",
        // Selected cells.
        "heatmapInvertedInk on heatmapMid 3.97",
        "heatmapInvertedInk2 on heatmapMid 3.61",
        "heatmapInvertedInk2 on caution 4.18",
        "heatmapInvertedInk3 on heatmapMid 3.32",
        "heatmapInvertedInk3 on caution 3.84",
        "heatmapInvertedInk3 on accent 4.30",
        "heatmapInvertedInk3 on safe 4.30",
    };
    EXPECT_EQ(pairsBelow(lightPalette), inLight);
    EXPECT_EQ(pairsBelow(darkPalette), (std::set<std::string>{}));
}

TEST(Palette, KeepsTheTextOfEveryPlainCellReadable)
{
    EXPECT_EQ(cellsBelow(lightPalette, {0.15, 0.25}), (std::set<std::string>{}));
    EXPECT_EQ(cellsBelow(darkPalette, {0.20, 0.25}), (std::set<std::string>{}));
}

TEST(KarvelloAppearanceMode, IsStoredByTheNameOfItsCase)
{
    using Mode = KarvelloAppearanceMode;
    EXPECT_EQ(kAppearanceModeKey, "karvello.appearanceMode");
    EXPECT_EQ(Platform::rawValue(Mode::system), "system");
    EXPECT_EQ(Platform::rawValue(Mode::light), "light");
    EXPECT_EQ(Platform::rawValue(Mode::dark), "dark");
}

TEST(KarvelloAppearanceMode, FollowsThePlatformOnlyWhenToldSo)
{
    using Mode = KarvelloAppearanceMode;
    for (const ColorScheme ofPlatform : {ColorScheme::light, ColorScheme::dark}) {
        EXPECT_EQ(colorScheme(Mode::system, ofPlatform), ofPlatform);
        EXPECT_EQ(colorScheme(Mode::light, ofPlatform), ColorScheme::light);
        EXPECT_EQ(colorScheme(Mode::dark, ofPlatform), ColorScheme::dark);
    }
}

} // namespace KarvelloUI
