#include "KarvelloUI/Stores/CleanupReviewPreferencesStore.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace KarvelloUI {

namespace {

using Stored = std::expected<void, Platform::FileError>;

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
}

QString CleanupReviewPreferencesStore::cadenceName() const
{
    return toQString(Platform::rawValue(m_preferences.cadence));
}

QString CleanupReviewPreferencesStore::selectedProfileIDName() const
{
    return toQString(Platform::rawValue(m_preferences.selectedProfileID));
}

QDateTime CleanupReviewPreferencesStore::lastReviewedDateTime() const
{
    if (!m_preferences.lastReviewedAt) {
        return {};
    }
    // A stored date may lie further ahead than a calendar reaches.
    constexpr double kLatest = 8.64e15;
    const double milliseconds = std::min(m_preferences.lastReviewedAt->secondsSince1970() * 1000, kLatest);
    return QDateTime::fromMSecsSinceEpoch(std::llround(milliseconds));
}

const CleanupReviewProfile& CleanupReviewPreferencesStore::selectedProfile() const
{
    return CleanupReviewProfile::profile(m_preferences.selectedProfileID);
}

CleanupReviewCadenceStatus CleanupReviewPreferencesStore::status(Platform::Date now) const
{
    return reviewStatus(m_preferences.cadence, m_preferences.lastReviewedAt, now);
}

// Even what is chosen already is written: the stored text may be one that nobody knows.

Stored CleanupReviewPreferencesStore::setCadence(CleanupReviewCadence cadence)
{
    const auto stored =
        m_defaults.set(CleanupReviewPreferences::cadenceDefaultsKey, std::string(Platform::rawValue(cadence)));
    if (stored && std::exchange(m_preferences.cadence, cadence) != cadence) {
        Q_EMIT cadenceChanged();
    }
    return stored;
}

Stored CleanupReviewPreferencesStore::selectProfile(CleanupReviewProfileID id)
{
    const auto stored =
        m_defaults.set(CleanupReviewPreferences::selectedProfileIDDefaultsKey, std::string(Platform::rawValue(id)));
    if (stored && std::exchange(m_preferences.selectedProfileID, id) != id) {
        Q_EMIT selectedProfileIDChanged();
    }
    return stored;
}

Stored CleanupReviewPreferencesStore::markReviewed(Platform::Date at)
{
    const auto stored = m_defaults.set(CleanupReviewPreferences::lastReviewedAtDefaultsKey, at.secondsSince1970());
    if (stored && std::exchange(m_preferences.lastReviewedAt, at) != at) {
        Q_EMIT lastReviewedAtChanged();
    }
    return stored;
}

} // namespace KarvelloUI
