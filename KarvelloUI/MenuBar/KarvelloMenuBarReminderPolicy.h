#pragma once

#include "KarvelloUI/MenuBar/KarvelloMenuBarReminder.h"
#include "KarvelloUI/MenuBar/KarvelloMenuBarStatusSnapshot.h"
#include "Platform/Base/Date.h"

#include <optional>
#include <vector>

namespace KarvelloUI {

/// What is worth a reminder, and how often the user is reminded.
struct KarvelloMenuBarReminderPolicy {
    static constexpr double defaultLowDiskFreeFraction = 0.1;
    /// Six hours.
    static constexpr double defaultMinimumInterval = 21600;

    /// At this fraction of free space and below, the disk is low.
    double lowDiskFreeFraction = defaultLowDiskFreeFraction;
    /// In seconds, from one notification to the next, of whatever kind.
    double minimumInterval = defaultMinimumInterval;

    /// In the order of the kinds.
    [[nodiscard]] std::vector<KarvelloMenuBarReminder> reminders(const KarvelloMenuBarStatusSnapshot& snapshot) const;
    /// A delivery in the future, as after the clock was set back, allows none until it has passed.
    [[nodiscard]] bool canDeliver(std::optional<Platform::Date> lastDeliveredAt, Platform::Date now) const;

    friend bool operator==(const KarvelloMenuBarReminderPolicy&, const KarvelloMenuBarReminderPolicy&) = default;
};

} // namespace KarvelloUI
