#pragma once

#include "KarvelloUI/Design/Color.h"
#include "KarvelloUI/Design/KarvelloAppearanceMode.h"

#include <array>
#include <string_view>

namespace KarvelloUI::KarvelloDesign {

/// The colours of one scheme, all opaque.
struct Palette {
    Color background;
    /// Cards; `elevated2` is a band inside a card, `elevated3` a well.
    Color elevated1;
    Color elevated2;
    Color elevated3;
    Color sidebar;
    Color line;
    Color lineStrong;
    Color lineSoft;
    /// Text, from the most important to the least.
    Color ink;
    Color ink2;
    Color ink3;
    Color ink4;
    Color accent;
    Color accentSoft;
    Color accentDeep;
    Color accentForeground;
    Color safe;
    Color safeSoft;
    Color caution;
    Color cautionSoft;
    Color review;
    Color reviewSoft;
    Color heatmapMid;
    /// Text on a cell that is filled with its full tint.
    Color heatmapInvertedInk;
    Color heatmapInvertedInk2;
    Color heatmapInvertedInk3;

    friend bool operator==(const Palette&, const Palette&) = default;
};

extern const Palette lightPalette;
extern const Palette darkPalette;

[[nodiscard]] const Palette& palette(ColorScheme scheme);

/// A colour of the palette by its name, for whoever needs all of them.
struct PaletteField {
    std::string_view name;
    Color Palette::* color;
};

inline constexpr std::array<PaletteField, 26> kPaletteFields{{
    {"background", &Palette::background},
    {"elevated1", &Palette::elevated1},
    {"elevated2", &Palette::elevated2},
    {"elevated3", &Palette::elevated3},
    {"sidebar", &Palette::sidebar},
    {"line", &Palette::line},
    {"lineStrong", &Palette::lineStrong},
    {"lineSoft", &Palette::lineSoft},
    {"ink", &Palette::ink},
    {"ink2", &Palette::ink2},
    {"ink3", &Palette::ink3},
    {"ink4", &Palette::ink4},
    {"accent", &Palette::accent},
    {"accentSoft", &Palette::accentSoft},
    {"accentDeep", &Palette::accentDeep},
    {"accentForeground", &Palette::accentForeground},
    {"safe", &Palette::safe},
    {"safeSoft", &Palette::safeSoft},
    {"caution", &Palette::caution},
    {"cautionSoft", &Palette::cautionSoft},
    {"review", &Palette::review},
    {"reviewSoft", &Palette::reviewSoft},
    {"heatmapMid", &Palette::heatmapMid},
    {"heatmapInvertedInk", &Palette::heatmapInvertedInk},
    {"heatmapInvertedInk2", &Palette::heatmapInvertedInk2},
    {"heatmapInvertedInk3", &Palette::heatmapInvertedInk3},
}};

} // namespace KarvelloUI::KarvelloDesign
