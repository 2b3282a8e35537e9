#include "KarvelloUI/MenuBar/KarvelloMenuBarStatusModel.h"

#include "KarvelloUI/MenuBar/DisabledMenuBarReminderScheduler.h"
#include "KarvelloUI/Sessions/SessionChanges.h"
#include "KarvelloUI/Stores/QtDates.h"

#include <QMetaObject>
#include <algorithm>
#include <array>
#include <chrono>
#include <limits>
#include <utility>

namespace KarvelloUI {

namespace {

std::chrono::nanoseconds delayOf(std::uint64_t nanoseconds)
{
    constexpr std::uint64_t longest = std::numeric_limits<std::chrono::nanoseconds::rep>::max();
    return std::chrono::nanoseconds(std::min(nanoseconds, longest));
}

} // namespace

KarvelloMenuBarStatusModel::KarvelloMenuBarStatusModel(KarvelloMenuBarStatusSnapshot snapshot, JobExecutor& executor,
    Platform::UserDefaults& defaults, std::unique_ptr<KarvelloMenuBarReminderScheduling> reminderScheduler,
    KarvelloMenuBarStatusSettings settings, KarvelloMenuBarStatusProviders providers, QObject* parent)
    : QObject(parent)
    , m_defaults(defaults)
    , m_reminderScheduler(std::move(reminderScheduler))
    , m_settings(settings)
    , m_providers(std::move(providers))
    , m_snapshot(std::move(snapshot))
    , m_activeReminders(settings.reminderPolicy.reminders(m_snapshot))
    , m_remindersEnabled(defaults.boolean(remindersEnabledDefaultsKey).value_or(false))
    , m_refresh(executor)
{
    if (!m_reminderScheduler) {
        m_reminderScheduler = std::make_unique<DisabledMenuBarReminderScheduler>();
    }
    if (const auto seconds = defaults.number(lastReminderDeliveredAtDefaultsKey); seconds > 0.0) {
        m_lastReminderDeliveredAt = Platform::Date::fromSecondsSince1970(*seconds);
    }
    if (m_remindersEnabled && m_settings.validatesPersistedAuthorizationOnInit) {
        QMetaObject::invokeMethod(this, [this] { refreshReminderAuthorizationStatus(); }, Qt::QueuedConnection);
    }
    if (m_settings.startsPolling) {
        m_isPollingEnabled = true;
        startPolling(m_settings.backgroundRefreshIntervalNanoseconds);
    }
}

QDateTime KarvelloMenuBarStatusModel::capturedDateTime() const
{
    return toQDateTime(m_snapshot.capturedAt);
}

QString KarvelloMenuBarStatusModel::thermalState() const
{
    return QString::fromStdString(m_snapshot.systemSnapshot.thermalState);
}

QDateTime KarvelloMenuBarStatusModel::lastReminderDeliveredDateTime() const
{
    return toQDateTime(m_lastReminderDeliveredAt);
}

QString KarvelloMenuBarStatusModel::lastReminderErrorText() const
{
    return QString::fromStdString(m_lastReminderError.value_or(std::string()));
}

bool KarvelloMenuBarStatusModel::publish()
{
    using Model = KarvelloMenuBarStatusModel;
    static constexpr std::array signalOf{
        std::pair(Change::snapshot, &Model::snapshotChanged),
        std::pair(Change::activeReminders, &Model::activeRemindersChanged),
        std::pair(Change::remindersEnabled, &Model::remindersEnabledChanged),
        std::pair(Change::reminderPermissionDenied, &Model::reminderPermissionDeniedChanged),
        std::pair(Change::lastReminderDeliveredAt, &Model::lastReminderDeliveredAtChanged),
        std::pair(Change::lastReminderError, &Model::lastReminderErrorChanged),
    };
    return announceChanges(*this, std::exchange(m_changes, {}), signalOf);
}

// Looking at the machine

void KarvelloMenuBarStatusModel::startPolling(std::uint64_t interval)
{
    m_activeInterval = std::max<std::uint64_t>(interval, 1);
    ++m_pollingTaskGeneration;
    scheduleTick();
}

void KarvelloMenuBarStatusModel::scheduleTick()
{
    m_providers.pollingTimer->start(delayOf(*m_activeInterval), [this] {
        scheduleTick();
        refresh();
    });
}

void KarvelloMenuBarStatusModel::refresh()
{
    if (m_isRefreshing) {
        return;
    }
    m_isRefreshing = true;
    m_lastRefreshStartedAt = m_providers.uptime();
    m_refresh.start([provider = m_providers.snapshotProvider](const std::stop_token&) { return provider(); },
        [this](const JobOutcome<KarvelloMenuBarStatusSnapshot>& outcome) { finishRefresh(outcome); });
}

void KarvelloMenuBarStatusModel::finishRefresh(const JobOutcome<KarvelloMenuBarStatusSnapshot>& outcome)
{
    if (!outcome) {
        m_isRefreshing = false;
        return;
    }
    m_snapshot = *outcome;
    m_changes |= Change::snapshot;
    if (!publish()) {
        return;
    }
    // Before the reminders: a desktop that is slow to answer does not hold up the next look.
    m_isRefreshing = false;
    processReminders(*outcome, {});
}

void KarvelloMenuBarStatusModel::beginVisiblePolling()
{
    if (++m_visiblePollingReferenceCount != 1) {
        return;
    }
    m_isPollingEnabled = true;
    const auto interval = m_settings.visibleRefreshIntervalNanoseconds.value_or(m_settings.refreshIntervalNanoseconds);
    startPolling(interval);
    const auto now = m_providers.uptime();
    const bool isFresh =
        m_lastRefreshStartedAt && *m_lastRefreshStartedAt <= now && now - *m_lastRefreshStartedAt < *m_activeInterval;
    if (!isFresh) {
        refresh();
    }
}

void KarvelloMenuBarStatusModel::endVisiblePolling()
{
    if (m_visiblePollingReferenceCount == 0) {
        return;
    }
    --m_visiblePollingReferenceCount;
    if (m_visiblePollingReferenceCount == 0 && m_isPollingEnabled) {
        startPolling(m_settings.backgroundRefreshIntervalNanoseconds);
    }
}

} // namespace KarvelloUI
