#include "KarvelloUI/MenuBar/KarvelloMenuBarReminderPolicy.h"

#include <string_view>

namespace KarvelloUI {

using Kind = KarvelloMenuBarReminder::Kind;
using Severity = KarvelloMenuBarReminder::Severity;

namespace {

std::optional<Severity> severityOfHeat(std::string_view thermalState)
{
    if (thermalState == "Critical") {
        return Severity::critical;
    }
    return thermalState == "Serious" ? std::optional(Severity::warning) : std::nullopt;
}

} // namespace

std::vector<KarvelloMenuBarReminder> KarvelloMenuBarReminderPolicy::reminders(
    const KarvelloMenuBarStatusSnapshot& snapshot) const
{
    std::vector<KarvelloMenuBarReminder> reminders;
    if (snapshot.diskTotalBytes >= 1 && snapshot.diskFreeFraction() <= lowDiskFreeFraction) {
        reminders.push_back({.kind = Kind::lowDiskSpace, .severity = Severity::warning});
    }
    if (snapshot.systemSnapshot.memoryPressure == "High") {
        reminders.push_back({.kind = Kind::highMemoryPressure, .severity = Severity::warning});
    }
    if (const auto severity = severityOfHeat(snapshot.systemSnapshot.thermalState)) {
        reminders.push_back({.kind = Kind::thermalPressure, .severity = *severity});
    }
    return reminders;
}

bool KarvelloMenuBarReminderPolicy::canDeliver(std::optional<Platform::Date> lastDeliveredAt, Platform::Date now) const
{
    return !lastDeliveredAt || now.secondsSince(*lastDeliveredAt) >= minimumInterval;
}

} // namespace KarvelloUI
