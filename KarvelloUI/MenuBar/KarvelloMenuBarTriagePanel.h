#pragma once

#include "KarvelloUI/MenuBar/KarvelloMenuBarReminder.h"
#include "KarvelloUI/MenuBar/KarvelloMenuBarStatusSnapshot.h"
#include "KarvelloUI/MenuBar/KarvelloMenuBarStrings.h"
#include "KarvelloUI/Stores/KarvelloDashboardLaunchRequest.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace KarvelloUI {

/// What the menu bar says of the reminders. It leads to the screens where the user can do something, and does nothing
/// itself.
struct KarvelloMenuBarTriagePanel {
    static constexpr std::string_view kSymbol = "exclamationmark.bubble";
    static constexpr std::string_view kEmptySymbol = "checkmark.circle";
    static constexpr std::string_view kReviewSymbol = "arrow.right";

    struct Row {
        KarvelloMenuBarReminder::Kind kind = KarvelloMenuBarReminder::Kind::lowDiskSpace;
        /// The name of a picture.
        std::string_view symbol = {};
        std::string detail = {};
        std::string buttonTitle = {};
        /// Where the button leads.
        KarvelloDashboardLaunchDestination destination = KarvelloDashboardLaunchDestination::dashboard;
        KarvelloMenuBarReminder::Severity severity = KarvelloMenuBarReminder::Severity::notice;

        friend bool operator==(const Row&, const Row&) = default;
    };

    /// One for each reminder, in their order.
    [[nodiscard]] static std::vector<Row> rows(std::span<const KarvelloMenuBarReminder> reminders,
        const KarvelloMenuBarStatusSnapshot& snapshot, const KarvelloMenuBarStrings& strings);
};

} // namespace KarvelloUI
