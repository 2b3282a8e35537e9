#include "KarvelloUI/Screens/Popover/StatusPopoverModel.h"

#include "KarvelloUI/Dashboard/KnownState.h"
#include "KarvelloUI/Dashboard/RawText.h"
#include "KarvelloUI/MenuBar/KarvelloMenuBarSystemMetrics.h"
#include "KarvelloUI/Screens/Popover/PopoverIcons.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace KarvelloUI {

using Kind = KarvelloMenuBarReminder::Kind;
using Destination = KarvelloDashboardLaunchDestination;

namespace {

/// How much of a bar is filled: what is no number fills nothing.
double barFraction(double value)
{
    return std::isnan(value) ? 0.0 : std::clamp(value, 0.0, 1.0);
}

PopoverMetric metricOf(const KarvelloMenuBarSystemMetrics::Metric& metric, PopoverLevel::Value level)
{
    return {
        .iconName = popoverIcon(metric.symbol),
        .title = shown(metric.title),
        .value = shown(metric.value),
        .fraction = barFraction(metric.barValue),
        .level = level,
    };
}

} // namespace

StatusPopoverModel::StatusPopoverModel(
    KarvelloMenuBarStatusModel& status, DashboardPreferences& preferences, QObject* parent)
    : QObject(parent)
    , m_status(&status)
    , m_preferences(preferences)
{
    connect(&status, &KarvelloMenuBarStatusModel::snapshotChanged, this, &StatusPopoverModel::refresh);
    connect(&status, &KarvelloMenuBarStatusModel::activeRemindersChanged, this, &StatusPopoverModel::refresh);
    connect(&preferences, &DashboardPreferences::languageChanged, this, &StatusPopoverModel::refresh);
    refresh();
}

StatusPopoverModel::~StatusPopoverModel()
{
    setVisible(false);
}

void StatusPopoverModel::setVisible(bool isVisible)
{
    if (std::exchange(m_isVisible, isVisible) == isVisible || !m_status) {
        return;
    }
    if (isVisible) {
        m_status->beginVisiblePolling();
    } else {
        m_status->endVisiblePolling();
    }
}

void StatusPopoverModel::openDashboard()
{
    Q_EMIT openDashboardRequested(rawText(Destination::dashboard));
}

void StatusPopoverModel::review(int row)
{
    if (const auto* const reminder = m_triage.row(row)) {
        Q_EMIT openDashboardRequested(rawText(reminder->row.destination));
    }
}

void StatusPopoverModel::refresh()
{
    if (!m_status) {
        return;
    }
    const KarvelloMenuBarStrings strings{{m_preferences.language()}};
    std::vector<TriageListRow> rows;
    for (auto& row : KarvelloMenuBarTriagePanel::rows(m_status->activeReminders(), m_status->snapshot(), strings)) {
        rows.push_back({std::move(row)});
    }
    m_triage.show(std::move(rows));
    if (Texts texts = this->texts(strings); texts != m_texts) {
        m_texts = std::move(texts);
        Q_EMIT textsChanged();
    }
}

StatusPopoverModel::Texts StatusPopoverModel::texts(const KarvelloMenuBarStrings& strings) const
{
    const auto& snapshot = m_status->snapshot();
    auto [cpu, memory, thermal] = KarvelloMenuBarSystemMetrics::metrics(snapshot, strings);
    if (!isKnownState(snapshot.systemSnapshot.thermalState)) {
        thermal.value = "—";
    }
    return {
        .brand = shown(m_preferences.words().appTitle()),
        .updated = shown(strings.updated(snapshot.capturedAt)),
        .storage = metricOf({.symbol = KarvelloMenuBarSystemMetrics::kStorageSymbol,
                                .title = strings.storageTitle(),
                                .value = strings.storageValue(snapshot),
                                .barValue = snapshot.diskUsedFraction()},
            levelOf(Kind::lowDiskSpace)),
        .storageDetail = shown(strings.storageSubtitle(snapshot)),
        .cpu = metricOf(cpu, PopoverLevel::Calm),
        .memory = metricOf(memory, levelOf(Kind::highMemoryPressure)),
        .thermal = metricOf(thermal, levelOf(Kind::thermalPressure)),
        .triageTitle = shown(strings.triageTitle()),
        .triageBody = shown(strings.triageBody()),
        .triageEmptyTitle = shown(strings.triageEmptyTitle()),
        .openDashboard = shown(strings.openDashboardTitle()),
        .quit = shown(strings.quitTitle()),
        .isCalm = m_status->activeReminders().empty(),
    };
}

PopoverLevel::Value StatusPopoverModel::levelOf(Kind kind) const
{
    const auto& reminders = m_status->activeReminders();
    const auto found = std::ranges::find(reminders, kind, &KarvelloMenuBarReminder::kind);
    if (found == reminders.end()) {
        return PopoverLevel::Calm;
    }
    return found->severity == KarvelloMenuBarReminder::Severity::critical ? PopoverLevel::Critical
                                                                          : PopoverLevel::Warning;
}

} // namespace KarvelloUI
