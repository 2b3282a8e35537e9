#pragma once

#include "KarvelloUI/Design/Palette.h"

#include <cstdint>
#include <optional>
#include <string>

namespace KarvelloUI {

enum class KarvelloPillKind : std::uint8_t { neutral, accent, safe, caution, review };

/// A word on a coloured ground. It tells, and never acts.
struct KarvelloPill {
    std::string text;
    KarvelloPillKind kind = KarvelloPillKind::neutral;

    friend bool operator==(const KarvelloPill&, const KarvelloPill&) = default;
};

struct KarvelloPillColors {
    Color foreground;
    Color background;
    std::optional<Color> stroke = {};

    friend bool operator==(const KarvelloPillColors&, const KarvelloPillColors&) = default;
};

[[nodiscard]] KarvelloPillColors pillColors(KarvelloPillKind kind, const KarvelloDesign::Palette& palette);

} // namespace KarvelloUI
