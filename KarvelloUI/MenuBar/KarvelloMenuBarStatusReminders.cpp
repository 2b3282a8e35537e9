// The half of the model that notifies: what the user wants, what the desktop allows, and one notification at a time.

#include "KarvelloUI/MenuBar/KarvelloMenuBarStatusModel.h"
#include "KarvelloUI/MenuBar/KarvelloMenuBarStrings.h"

#include <QLocale>
#include <QMetaObject>
#include <QPointer>
#include <fmt/ranges.h>
#include <tuple>
#include <utility>

namespace KarvelloUI {

struct KarvelloMenuBarStatusModel::Delivery {
    std::vector<KarvelloMenuBarReminder> reminders;
    KarvelloMenuBarStatusSnapshot snapshot;
    int generation;
    Applied processed;
};

namespace {

std::string notificationIdentifier(const std::vector<KarvelloMenuBarReminder>& reminders)
{
    std::vector<std::string_view> kinds;
    kinds.reserve(reminders.size());
    for (const auto& reminder : reminders) {
        kinds.push_back(Platform::rawValue(reminder.kind));
    }
    return fmt::format("karvello.menu-bar-reminder.{}", fmt::join(kinds, "."));
}

AppLanguage languageOfTheUser(const Platform::UserDefaults& defaults)
{
    std::vector<std::string> preferred;
    for (const auto& identifier : QLocale::system().uiLanguages()) {
        preferred.push_back(identifier.toStdString());
    }
    return persistedLanguage(defaults, preferred);
}

void callIfSet(const KarvelloMenuBarStatusModel::Applied& call)
{
    if (call) {
        call();
    }
}

} // namespace

template <typename Call>
auto KarvelloMenuBarStatusModel::whileAlive(Call call)
{
    return [self = QPointer(this), call = std::move(call)](auto&&... answer) {
        if (self) {
            call(std::forward<decltype(answer)>(answer)...);
        }
    };
}

bool KarvelloMenuBarStatusModel::canDeliverNow() const
{
    return m_settings.reminderPolicy.canDeliver(m_lastReminderDeliveredAt, m_providers.now());
}

bool KarvelloMenuBarStatusModel::isStillWanted(int generation) const
{
    return m_remindersEnabled && generation == m_reminderPreferenceGeneration;
}

void KarvelloMenuBarStatusModel::processReminders(const KarvelloMenuBarStatusSnapshot& snapshot, Applied processed)
{
    const auto reminders = m_settings.reminderPolicy.reminders(snapshot);
    if (reminders != m_activeReminders) {
        m_activeReminders = reminders;
        m_changes |= Change::activeReminders;
        if (!publish()) {
            return;
        }
    }
    if (!m_remindersEnabled || reminders.empty() || !canDeliverNow() || m_isDeliveringReminder) {
        callIfSet(processed);
        return;
    }
    m_isDeliveringReminder = true;
    const auto delivery = std::make_shared<const Delivery>(Delivery{
        .reminders = reminders,
        .snapshot = snapshot,
        .generation = m_reminderPreferenceGeneration,
        .processed = std::move(processed),
    });
    m_reminderScheduler->hasAuthorization(
        whileAlive([this, delivery](bool isAuthorized) { deliver(delivery, isAuthorized); }));
}

void KarvelloMenuBarStatusModel::deliver(const std::shared_ptr<const Delivery>& delivery, bool isAuthorized)
{
    if (!isStillWanted(delivery->generation)) {
        endDelivery(*delivery);
        return;
    }
    if (!isAuthorized) {
        disableRemindersForPermissionDenied();
        endDelivery(*delivery);
        return;
    }
    // Another delivery may have come through while the desktop was asked.
    if (!canDeliverNow()) {
        endDelivery(*delivery);
        return;
    }
    const auto date = m_providers.now();
    const KarvelloMenuBarStrings strings{
        {m_providers.languageProvider ? m_providers.languageProvider() : languageOfTheUser(m_defaults)}};
    if (!isStillWanted(delivery->generation)) {
        endDelivery(*delivery);
        return;
    }
    m_reminderScheduler->deliver(strings.reminderNotificationTitle(delivery->reminders),
        strings.reminderNotificationBody(delivery->reminders, delivery->snapshot),
        notificationIdentifier(delivery->reminders),
        whileAlive([this, delivery, date](
                       const std::expected<void, std::string>& result) { finishDelivery(*delivery, date, result); }));
}

void KarvelloMenuBarStatusModel::finishDelivery(
    const Delivery& delivery, Platform::Date date, const std::expected<void, std::string>& result)
{
    if (!result) {
        setLastReminderError(result.error());
    } else if (isStillWanted(delivery.generation)) {
        m_lastReminderDeliveredAt = date;
        m_changes |= Change::lastReminderDeliveredAt;
        setLastReminderError(std::nullopt);
        // If it cannot be stored, the interval holds until the process ends.
        std::ignore = m_defaults.set(lastReminderDeliveredAtDefaultsKey, date.secondsSince1970());
    }
    endDelivery(delivery);
}

void KarvelloMenuBarStatusModel::endDelivery(const Delivery& delivery)
{
    m_isDeliveringReminder = false;
    if (publish()) {
        callIfSet(delivery.processed);
    }
}

void KarvelloMenuBarStatusModel::setRemindersEnabled(bool isEnabled)
{
    const int generation = ++m_reminderPreferenceGeneration;
    QMetaObject::invokeMethod(
        this, [this, isEnabled, generation] { applyRemindersEnabled(isEnabled, generation, {}); },
        Qt::QueuedConnection);
}

void KarvelloMenuBarStatusModel::applyRemindersEnabled(bool isEnabled, Applied applied)
{
    applyRemindersEnabled(isEnabled, ++m_reminderPreferenceGeneration, std::move(applied));
}

void KarvelloMenuBarStatusModel::applyRemindersEnabled(bool isEnabled, int generation, Applied applied)
{
    if (!isEnabled) {
        setChoice(false, false);
        if (publish()) {
            callIfSet(applied);
        }
        return;
    }
    m_reminderScheduler->requestAuthorization(
        whileAlive([this, generation, applied = std::move(applied)](bool isGranted) {
            if (generation != m_reminderPreferenceGeneration) {
                callIfSet(applied);
                return;
            }
            if (!isGranted) {
                disableRemindersForPermissionDenied();
            } else {
                setChoice(true, false);
            }
            if (!publish()) {
                return;
            }
            if (isGranted) {
                processReminders(KarvelloMenuBarStatusSnapshot(m_snapshot), applied);
            } else {
                callIfSet(applied);
            }
        }));
}

void KarvelloMenuBarStatusModel::refreshReminderAuthorizationStatus()
{
    const int generation = m_reminderPreferenceGeneration;
    m_reminderScheduler->hasAuthorization(whileAlive([this, generation](bool isAuthorized) {
        if (!isStillWanted(generation)) {
            return;
        }
        if (!isAuthorized) {
            disableRemindersForPermissionDenied();
        } else {
            setPermissionDenied(false);
            setLastReminderError(std::nullopt);
        }
        publish();
    }));
}

void KarvelloMenuBarStatusModel::disableRemindersForPermissionDenied()
{
    setChoice(false, true);
}

void KarvelloMenuBarStatusModel::setChoice(bool isEnabled, bool isDenied)
{
    if (std::exchange(m_remindersEnabled, isEnabled) != isEnabled) {
        m_changes |= Change::remindersEnabled;
    }
    setPermissionDenied(isDenied);
    setLastReminderError(std::nullopt);
    std::ignore = m_defaults.set(remindersEnabledDefaultsKey, isEnabled);
}

void KarvelloMenuBarStatusModel::setPermissionDenied(bool isDenied)
{
    if (std::exchange(m_reminderPermissionDenied, isDenied) != isDenied) {
        m_changes |= Change::reminderPermissionDenied;
    }
}

void KarvelloMenuBarStatusModel::setLastReminderError(std::optional<std::string> error)
{
    if (error != m_lastReminderError) {
        m_lastReminderError = std::move(error);
        m_changes |= Change::lastReminderError;
    }
}

} // namespace KarvelloUI
