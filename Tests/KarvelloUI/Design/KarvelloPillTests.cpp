#include "KarvelloUI/Design/KarvelloPill.h"

#include <gtest/gtest.h>

namespace KarvelloUI {

TEST(KarvelloPill, HasTheColoursOfItsKindInBothSchemes)
{
    using Kind = KarvelloPillKind;
    for (const auto* palette : {&KarvelloDesign::lightPalette, &KarvelloDesign::darkPalette}) {
        EXPECT_EQ(pillColors(Kind::neutral, *palette),
            (KarvelloPillColors{
                .foreground = palette->ink2, .background = palette->elevated2, .stroke = palette->line}));
        EXPECT_EQ(pillColors(Kind::accent, *palette),
            (KarvelloPillColors{.foreground = palette->accent, .background = palette->accentSoft}));
        EXPECT_EQ(pillColors(Kind::safe, *palette),
            (KarvelloPillColors{.foreground = palette->safe, .background = palette->safeSoft}));
        EXPECT_EQ(pillColors(Kind::caution, *palette),
            (KarvelloPillColors{.foreground = palette->caution, .background = palette->cautionSoft}));
        EXPECT_EQ(pillColors(Kind::review, *palette),
            (KarvelloPillColors{.foreground = palette->review, .background = palette->reviewSoft}));
    }
}

TEST(KarvelloPill, IsItsWordAndItsKind)
{
    const KarvelloPill pill{.text = "Safe", .kind = KarvelloPillKind::safe};
    EXPECT_EQ(pill, (KarvelloPill{.text = "Safe", .kind = KarvelloPillKind::safe}));
    EXPECT_NE(pill, (KarvelloPill{.text = "Safe", .kind = KarvelloPillKind::accent}));
    EXPECT_NE(pill, (KarvelloPill{.text = "Sicher", .kind = KarvelloPillKind::safe}));
}

} // namespace KarvelloUI
