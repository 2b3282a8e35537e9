#include "KarvelloUI/Design/Palette.h"

namespace KarvelloUI::KarvelloDesign {

constexpr Palette lightPalette{
    .background = Color::fromRGB(0xEEF3F1),
    .elevated1 = Color::fromRGB(0xFFFFFF),
    .elevated2 = Color::fromRGB(0xF8FBFA),
    .elevated3 = Color::fromRGB(0xE8F0EE),
    .sidebar = Color::fromRGB(0xF4F9F7),
    .line = Color::fromRGB(0xD8E1DD),
    .lineStrong = Color::fromRGB(0xB7C8C0),
    .lineSoft = Color::fromRGB(0xE8F0EE),
    .ink = Color::fromRGB(0x12201D),
    .ink2 = Color::fromRGB(0x354540),
    .ink3 = Color::fromRGB(0x56645E),
    .ink4 = Color::fromRGB(0x606E68),
    .accent = Color::fromRGB(0x0F7D54),
    .accentSoft = Color::fromRGB(0xDDF8EC),
    .accentDeep = Color::fromRGB(0x0B6644),
    .accentForeground = Color::fromRGB(0xFFFFFF),
    .safe = Color::fromRGB(0x0F7D54),
    .safeSoft = Color::fromRGB(0xDFF1E5),
    .caution = Color::fromRGB(0xA06A14),
    .cautionSoft = Color::fromRGB(0xFFF3DC),
    .review = Color::fromRGB(0xB83A3A),
    .reviewSoft = Color::fromRGB(0xFFE8E8),
    .heatmapMid = Color::fromRGB(0x3678FF),
    .heatmapInvertedInk = Color::fromRGB(0xFFFFFF),
    .heatmapInvertedInk2 = Color::fromRGB(0xF2F4F8),
    .heatmapInvertedInk3 = Color::fromRGB(0xE6EBF3),
};

constexpr Palette darkPalette{
    .background = Color::fromRGB(0x081310),
    .elevated1 = Color::fromRGB(0x14221F),
    .elevated2 = Color::fromRGB(0x111F1C),
    .elevated3 = Color::fromRGB(0x1A2B27),
    .sidebar = Color::fromRGB(0x0C1714),
    .line = Color::fromRGB(0x31443E),
    .lineStrong = Color::fromRGB(0x4B625A),
    .lineSoft = Color::fromRGB(0x20332E),
    .ink = Color::fromRGB(0xFFFFFF),
    .ink2 = Color::fromRGB(0xD1E1DA),
    .ink3 = Color::fromRGB(0xA9BBB3),
    .ink4 = Color::fromRGB(0x8FA099),
    .accent = Color::fromRGB(0x51E29E),
    .accentSoft = Color::fromRGB(0x173F30),
    .accentDeep = Color::fromRGB(0x18B776),
    .accentForeground = Color::fromRGB(0x081310),
    .safe = Color::fromRGB(0x51E29E),
    .safeSoft = Color::fromRGB(0x173F30),
    .caution = Color::fromRGB(0xF6BD60),
    .cautionSoft = Color::fromRGB(0x3F3019),
    .review = Color::fromRGB(0xFF8B8B),
    .reviewSoft = Color::fromRGB(0x432222),
    .heatmapMid = Color::fromRGB(0x789DF5),
    .heatmapInvertedInk = Color::fromRGB(0x000000),
    .heatmapInvertedInk2 = Color::fromRGB(0x080808),
    .heatmapInvertedInk3 = Color::fromRGB(0x111111),
};

const Palette& palette(ColorScheme scheme)
{
    return scheme == ColorScheme::dark ? darkPalette : lightPalette;
}

} // namespace KarvelloUI::KarvelloDesign
