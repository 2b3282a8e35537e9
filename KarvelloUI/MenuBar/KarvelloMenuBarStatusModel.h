#pragma once

#include "KarvelloUI/MenuBar/KarvelloMenuBarReminder.h"
#include "KarvelloUI/MenuBar/KarvelloMenuBarReminderScheduling.h"
#include "KarvelloUI/MenuBar/KarvelloMenuBarStatusOptions.h"
#include "KarvelloUI/MenuBar/KarvelloMenuBarStatusSnapshot.h"
#include "KarvelloUI/Sessions/Job.h"
#include "Platform/Services/UserDefaults.h"

#include <QDateTime>
#include <QFlags>
#include <QObject>
#include <QString>
#include <cstdint>
#include <expected>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace KarvelloUI {

/// The state of the machine for the menu bar, looked at again and again, and the reminders that follow from it. It notifies
/// nobody who has not opted in. Main thread only; the machine is looked at elsewhere. It may be destroyed at any moment,
/// also by those who observe it.
class KarvelloMenuBarStatusModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QDateTime capturedAt READ capturedDateTime NOTIFY snapshotChanged FINAL)
    Q_PROPERTY(qint64 diskTotalBytes READ diskTotalBytes NOTIFY snapshotChanged FINAL)
    Q_PROPERTY(qint64 diskFreeBytes READ diskFreeBytes NOTIFY snapshotChanged FINAL)
    Q_PROPERTY(double diskUsedFraction READ diskUsedFraction NOTIFY snapshotChanged FINAL)
    Q_PROPERTY(double diskFreeFraction READ diskFreeFraction NOTIFY snapshotChanged FINAL)
    Q_PROPERTY(double cpuLoadFraction READ cpuLoadFraction NOTIFY snapshotChanged FINAL)
    Q_PROPERTY(double memoryUsedFraction READ memoryUsedFraction NOTIFY snapshotChanged FINAL)
    Q_PROPERTY(QString thermalState READ thermalState NOTIFY snapshotChanged FINAL)
    Q_PROPERTY(qint64 activeReminderCount READ activeReminderCount NOTIFY activeRemindersChanged FINAL)
    Q_PROPERTY(bool remindersEnabled READ areRemindersEnabled NOTIFY remindersEnabledChanged FINAL)
    Q_PROPERTY(
        bool reminderPermissionDenied READ isReminderPermissionDenied NOTIFY reminderPermissionDeniedChanged FINAL)
    Q_PROPERTY(QDateTime lastReminderDeliveredAt READ lastReminderDeliveredDateTime NOTIFY
            lastReminderDeliveredAtChanged FINAL)
    Q_PROPERTY(QString lastReminderError READ lastReminderErrorText NOTIFY lastReminderErrorChanged FINAL)

public:
    static constexpr std::string_view remindersEnabledDefaultsKey = "karvello.menuBarRemindersEnabled";
    /// A number: seconds since 1970-01-01T00:00:00Z.
    static constexpr std::string_view lastReminderDeliveredAtDefaultsKey = "karvello.menuBarReminderLastDeliveredAt";

    using Applied = std::function<void()>;

    /// Without a scheduler nothing is delivered. `executor` and `defaults` must outlive the model.
    KarvelloMenuBarStatusModel(KarvelloMenuBarStatusSnapshot snapshot, JobExecutor& executor,
        Platform::UserDefaults& defaults, std::unique_ptr<KarvelloMenuBarReminderScheduling> reminderScheduler,
        KarvelloMenuBarStatusSettings settings, KarvelloMenuBarStatusProviders providers, QObject* parent = nullptr);

    [[nodiscard]] const KarvelloMenuBarStatusSnapshot& snapshot() const { return m_snapshot; }
    [[nodiscard]] QDateTime capturedDateTime() const;
    [[nodiscard]] qint64 diskTotalBytes() const { return m_snapshot.diskTotalBytes; }
    [[nodiscard]] qint64 diskFreeBytes() const { return m_snapshot.diskFreeBytes; }
    [[nodiscard]] double diskUsedFraction() const { return m_snapshot.diskUsedFraction(); }
    [[nodiscard]] double diskFreeFraction() const { return m_snapshot.diskFreeFraction(); }
    [[nodiscard]] double cpuLoadFraction() const { return m_snapshot.cpuLoadFraction(); }
    [[nodiscard]] double memoryUsedFraction() const { return m_snapshot.memoryUsedFraction(); }
    [[nodiscard]] QString thermalState() const;

    /// What the snapshot calls for, whether or not the user wants to be notified.
    [[nodiscard]] const std::vector<KarvelloMenuBarReminder>& activeReminders() const { return m_activeReminders; }
    [[nodiscard]] qint64 activeReminderCount() const { return static_cast<qint64>(m_activeReminders.size()); }

    /// Takes a new snapshot, unless one is being taken.
    Q_INVOKABLE void refresh();
    [[nodiscard]] bool isRefreshing() const { return m_isRefreshing; }

    /// A view of the model is on the screen from `begin` to `end`. While there is one, the machine is looked at more often.
    Q_INVOKABLE void beginVisiblePolling();
    Q_INVOKABLE void endVisiblePolling();
    /// For observation; nothing is decided by them.
    [[nodiscard]] std::optional<std::uint64_t> activePollingIntervalNanoseconds() const { return m_activeInterval; }
    [[nodiscard]] int pollingTaskGeneration() const { return m_pollingTaskGeneration; }

    /// Whether the user wants notifications and the desktop has allowed them.
    [[nodiscard]] bool areRemindersEnabled() const { return m_remindersEnabled; }
    /// The user wants them, but the desktop does not allow it.
    [[nodiscard]] bool isReminderPermissionDenied() const { return m_reminderPermissionDenied; }
    [[nodiscard]] std::optional<Platform::Date> lastReminderDeliveredAt() const { return m_lastReminderDeliveredAt; }
    /// Not valid if there was none.
    [[nodiscard]] QDateTime lastReminderDeliveredDateTime() const;
    /// Why the last delivery failed.
    [[nodiscard]] const std::optional<std::string>& lastReminderError() const { return m_lastReminderError; }
    /// Empty for none.
    [[nodiscard]] QString lastReminderErrorText() const;

    /// The user's wish, from the event loop's next turn on; of several wishes the last one counts. A choice that cannot be
    /// stored holds as long as this model.
    Q_INVOKABLE void setRemindersEnabled(bool isEnabled);
    /// The same at once. `applied` is called when the wish is granted, refused, or overtaken by a later one.
    void applyRemindersEnabled(bool isEnabled, Applied applied = {});
    /// Holds the wish against what the desktop allows now.
    Q_INVOKABLE void refreshReminderAuthorizationStatus();

Q_SIGNALS:
    void snapshotChanged();
    void activeRemindersChanged();
    void remindersEnabledChanged();
    void reminderPermissionDeniedChanged();
    void lastReminderDeliveredAtChanged();
    void lastReminderErrorChanged();

private:
    enum class Change : std::uint8_t {
        snapshot = 1,
        activeReminders = 2,
        remindersEnabled = 4,
        reminderPermissionDenied = 8,
        lastReminderDeliveredAt = 16,
        lastReminderError = 32,
    };
    Q_DECLARE_FLAGS(Changes, Change)

    /// One notification on its way.
    struct Delivery;

    void startPolling(std::uint64_t interval);
    void scheduleTick();
    void finishRefresh(const JobOutcome<KarvelloMenuBarStatusSnapshot>& outcome);

    void processReminders(const KarvelloMenuBarStatusSnapshot& snapshot, Applied processed);
    void deliver(const std::shared_ptr<const Delivery>& delivery, bool isAuthorized);
    void finishDelivery(const Delivery& delivery, Platform::Date date, const std::expected<void, std::string>& result);
    void endDelivery(const Delivery& delivery);
    [[nodiscard]] bool canDeliverNow() const;
    /// The user still wants what was wanted at `generation`.
    [[nodiscard]] bool isStillWanted(int generation) const;

    void applyRemindersEnabled(bool isEnabled, int generation, Applied applied);
    void disableRemindersForPermissionDenied();
    /// Keeps what the user chose, in memory and on the disk.
    void setChoice(bool isEnabled, bool isDenied);
    void setPermissionDenied(bool isDenied);
    void setLastReminderError(std::optional<std::string> error);
    /// Tells observers of what has changed since the last call. False: one of them has destroyed the model.
    bool publish();
    /// `call`, as long as there is this model.
    template <typename Call>
    auto whileAlive(Call call);

    Platform::UserDefaults& m_defaults;
    std::unique_ptr<KarvelloMenuBarReminderScheduling> m_reminderScheduler;
    KarvelloMenuBarStatusSettings m_settings;
    KarvelloMenuBarStatusProviders m_providers;

    KarvelloMenuBarStatusSnapshot m_snapshot;
    std::vector<KarvelloMenuBarReminder> m_activeReminders;
    bool m_remindersEnabled = false;
    bool m_reminderPermissionDenied = false;
    std::optional<Platform::Date> m_lastReminderDeliveredAt;
    std::optional<std::string> m_lastReminderError;
    Changes m_changes;

    bool m_isRefreshing = false;
    bool m_isDeliveringReminder = false;
    /// Counts the user's choices: an answer of the desktop to an older one does not count any more.
    int m_reminderPreferenceGeneration = 0;
    bool m_isPollingEnabled = false;
    int m_visiblePollingReferenceCount = 0;
    int m_pollingTaskGeneration = 0;
    std::optional<std::uint64_t> m_activeInterval;
    std::optional<std::uint64_t> m_lastRefreshStartedAt;
    Job m_refresh;
};

} // namespace KarvelloUI
