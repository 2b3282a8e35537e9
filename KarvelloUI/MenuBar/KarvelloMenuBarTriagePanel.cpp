#include "KarvelloUI/MenuBar/KarvelloMenuBarTriagePanel.h"

namespace KarvelloUI {

using Kind = KarvelloMenuBarReminder::Kind;
using Destination = KarvelloDashboardLaunchDestination;

namespace {

struct Look {
    std::string_view symbol;
    Destination destination;
};

Look lookOf(Kind kind)
{
    switch (kind) {
    case Kind::lowDiskSpace:
        return {.symbol = "internaldrive", .destination = Destination::cleanupReview};
    case Kind::highMemoryPressure:
        return {.symbol = "memorychip", .destination = Destination::memoryReview};
    case Kind::thermalPressure:
        return {.symbol = "thermometer.medium", .destination = Destination::systemReview};
    }
    return {};
}

} // namespace

std::vector<KarvelloMenuBarTriagePanel::Row> KarvelloMenuBarTriagePanel::rows(
    std::span<const KarvelloMenuBarReminder> reminders, const KarvelloMenuBarStatusSnapshot& snapshot,
    const KarvelloMenuBarStrings& strings)
{
    std::vector<Row> rows;
    rows.reserve(reminders.size());
    for (const auto& reminder : reminders) {
        const auto look = lookOf(reminder.kind);
        rows.push_back({
            .kind = reminder.kind,
            .symbol = look.symbol,
            .detail = strings.reminderDetail(reminder, snapshot),
            .buttonTitle = strings.triageReviewButtonTitle(reminder.kind),
            .destination = look.destination,
            .severity = reminder.severity,
        });
    }
    return rows;
}

} // namespace KarvelloUI
