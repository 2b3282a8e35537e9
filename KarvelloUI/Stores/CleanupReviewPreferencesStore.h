#pragma once

#include "KarvelloUI/Stores/CleanupReviewPreferences.h"
#include "KarvelloUI/Stores/CleanupReviewProfile.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <expected>

namespace KarvelloUI {

/// When the user wants to be reminded of a review, of what, and when the last one was. Lives on the main thread. What
/// could not be stored does not count: the store then tells why and stays as it was, like the disk.
class CleanupReviewPreferencesStore : public QObject {
    Q_OBJECT

public:
    /// Reads what is stored; `defaults` outlives the store.
    explicit CleanupReviewPreferencesStore(Platform::UserDefaults& defaults, QObject* parent = nullptr);

    Q_PROPERTY(QString cadence READ cadenceName NOTIFY cadenceChanged)
    [[nodiscard]] CleanupReviewCadence cadence() const { return m_preferences.cadence; }
    [[nodiscard]] QString cadenceName() const;
    Q_SIGNAL void cadenceChanged();

    Q_PROPERTY(QString selectedProfileID READ selectedProfileIDName NOTIFY selectedProfileIDChanged)
    [[nodiscard]] CleanupReviewProfileID selectedProfileID() const { return m_preferences.selectedProfileID; }
    [[nodiscard]] QString selectedProfileIDName() const;
    Q_SIGNAL void selectedProfileIDChanged();
    [[nodiscard]] const CleanupReviewProfile& selectedProfile() const;

    /// Not valid before the first review.
    Q_PROPERTY(QDateTime lastReviewedAt READ lastReviewedDateTime NOTIFY lastReviewedAtChanged)
    [[nodiscard]] QDateTime lastReviewedDateTime() const;
    [[nodiscard]] std::optional<Platform::Date> lastReviewedAt() const { return m_preferences.lastReviewedAt; }
    Q_SIGNAL void lastReviewedAtChanged();

    [[nodiscard]] CleanupReviewCadenceStatus status(Platform::Date now) const;

    [[nodiscard]] std::expected<void, Platform::FileError> setCadence(CleanupReviewCadence cadence);
    [[nodiscard]] std::expected<void, Platform::FileError> selectProfile(CleanupReviewProfileID id);
    [[nodiscard]] std::expected<void, Platform::FileError> markReviewed(Platform::Date at);

private:
    Platform::UserDefaults& m_defaults;
    CleanupReviewPreferences m_preferences;
};

} // namespace KarvelloUI
