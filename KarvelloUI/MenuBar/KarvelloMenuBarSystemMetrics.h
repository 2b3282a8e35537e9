#pragma once

#include "KarvelloUI/MenuBar/KarvelloMenuBarStatusSnapshot.h"
#include "KarvelloUI/MenuBar/KarvelloMenuBarStrings.h"

#include <array>
#include <string>
#include <string_view>

namespace KarvelloUI {

/// The figures of the machine in the menu bar, each with a bar.
struct KarvelloMenuBarSystemMetrics {
    static constexpr std::string_view kStorageSymbol = "internaldrive";

    struct Metric {
        /// The name of a picture.
        std::string_view symbol = {};
        std::string title = {};
        std::string value = {};
        /// How far the bar reaches; not limited to 0 to 1, and possibly no number.
        double barValue = 0;

        friend bool operator==(const Metric&, const Metric&) = default;
    };

    /// Processors, memory and heat.
    [[nodiscard]] static std::array<Metric, 3> metrics(
        const KarvelloMenuBarStatusSnapshot& snapshot, const KarvelloMenuBarStrings& strings);
    /// 0 for a state that nobody knows.
    [[nodiscard]] static double thermalBarValue(std::string_view thermalState);
};

} // namespace KarvelloUI
