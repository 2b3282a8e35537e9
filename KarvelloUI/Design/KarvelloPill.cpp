#include "KarvelloUI/Design/KarvelloPill.h"

namespace KarvelloUI {

KarvelloPillColors pillColors(KarvelloPillKind kind, const KarvelloDesign::Palette& palette)
{
    switch (kind) {
    case KarvelloPillKind::neutral:
        break;
    case KarvelloPillKind::accent:
        return {.foreground = palette.accent, .background = palette.accentSoft};
    case KarvelloPillKind::safe:
        return {.foreground = palette.safe, .background = palette.safeSoft};
    case KarvelloPillKind::caution:
        return {.foreground = palette.caution, .background = palette.cautionSoft};
    case KarvelloPillKind::review:
        return {.foreground = palette.review, .background = palette.reviewSoft};
    }
    return {.foreground = palette.ink2, .background = palette.elevated2, .stroke = palette.line};
}

} // namespace KarvelloUI
