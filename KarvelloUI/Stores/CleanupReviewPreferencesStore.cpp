#include "KarvelloUI/Stores/CleanupReviewPreferencesStore.h"

#include "KarvelloUI/Stores/QtDates.h"

#include <QMetaObject>
#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <utility>

namespace KarvelloUI {

namespace {

QString toQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

CleanupReviewPreferencesStore::CleanupReviewPreferencesStore(Platform::UserDefaults& defaults, QObject* parent)
    : QObject(parent)
    , m_defaults(defaults)
    , m_preferences(CleanupReviewPreferences::read(defaults))
{
    // The observer may be called on any thread.
    m_observation = defaults.observe([this](std::span<const std::string> keys) {
        constexpr std::array kKeys{cadenceDefaultsKey, selectedProfileIDDefaultsKey, lastReviewedAtDefaultsKey};
        if (std::ranges::find_first_of(keys, kKeys) != keys.end()) {
            QMetaObject::invokeMethod(this, [this] { refresh(); }, Qt::QueuedConnection);
        }
    });
}

QString CleanupReviewPreferencesStore::cadenceText() const
{
    return toQString(Platform::rawValue(m_preferences.cadence));
}

QString CleanupReviewPreferencesStore::selectedProfileIDText() const
{
    return toQString(Platform::rawValue(m_preferences.selectedProfileID));
}

const CleanupReviewProfile& CleanupReviewPreferencesStore::selectedProfile() const
{
    return CleanupReviewProfile::profile(m_preferences.selectedProfileID);
}

QDateTime CleanupReviewPreferencesStore::lastReviewedDateTime() const
{
    return toQDateTime(m_preferences.lastReviewedAt);
}

bool CleanupReviewPreferencesStore::setCadence(CleanupReviewCadence cadence)
{
    return save(cadenceDefaultsKey, std::string(Platform::rawValue(cadence)));
}

bool CleanupReviewPreferencesStore::selectProfile(CleanupReviewProfileID id)
{
    return save(selectedProfileIDDefaultsKey, std::string(Platform::rawValue(id)));
}

bool CleanupReviewPreferencesStore::markReviewed(Platform::Date at)
{
    return save(lastReviewedAtDefaultsKey, at.secondsSince1970());
}

bool CleanupReviewPreferencesStore::save(std::string_view key, Platform::DefaultsValue value)
{
    if (!m_defaults.set(key, std::move(value))) {
        return false;
    }
    refresh();
    return true;
}

void CleanupReviewPreferencesStore::refresh()
{
    const auto old = std::exchange(m_preferences, CleanupReviewPreferences::read(m_defaults));
    // An observer of one property sees the others as they are now.
    const auto now = m_preferences;
    if (now.cadence != old.cadence) {
        Q_EMIT cadenceChanged();
    }
    if (now.selectedProfileID != old.selectedProfileID) {
        Q_EMIT selectedProfileIDChanged();
    }
    if (now.lastReviewedAt != old.lastReviewedAt) {
        Q_EMIT lastReviewedAtChanged();
    }
}

} // namespace KarvelloUI
