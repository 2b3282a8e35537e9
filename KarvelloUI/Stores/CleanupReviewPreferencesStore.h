#pragma once

#include "KarvelloUI/Stores/CleanupReviewPreferences.h"
#include "KarvelloUI/Stores/CleanupReviewProfile.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <string_view>

namespace KarvelloUI {

/// When the user wants to be reminded of a review, of what, and when the last one was. Main thread only.
class CleanupReviewPreferencesStore final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString cadence READ cadenceText NOTIFY cadenceChanged FINAL)
    Q_PROPERTY(QString selectedProfileID READ selectedProfileIDText NOTIFY selectedProfileIDChanged FINAL)
    Q_PROPERTY(QDateTime lastReviewedAt READ lastReviewedDateTime NOTIFY lastReviewedAtChanged FINAL)

public:
    static constexpr std::string_view cadenceDefaultsKey = CleanupReviewPreferences::cadenceDefaultsKey;
    static constexpr std::string_view selectedProfileIDDefaultsKey =
        CleanupReviewPreferences::selectedProfileIDDefaultsKey;
    static constexpr std::string_view lastReviewedAtDefaultsKey = CleanupReviewPreferences::lastReviewedAtDefaultsKey;

    /// Reads what is stored. `defaults` must outlive the store.
    explicit CleanupReviewPreferencesStore(Platform::UserDefaults& defaults, QObject* parent = nullptr);

    [[nodiscard]] CleanupReviewCadence cadence() const { return m_preferences.cadence; }
    [[nodiscard]] QString cadenceText() const;
    [[nodiscard]] CleanupReviewProfileID selectedProfileID() const { return m_preferences.selectedProfileID; }
    [[nodiscard]] QString selectedProfileIDText() const;
    [[nodiscard]] const CleanupReviewProfile& selectedProfile() const;
    [[nodiscard]] std::optional<Platform::Date> lastReviewedAt() const { return m_preferences.lastReviewedAt; }
    /// Not valid before the first review.
    [[nodiscard]] QDateTime lastReviewedDateTime() const;

    /// Whether it is stored now. What cannot be stored does not count: the store stays as it was, like the disk.
    bool setCadence(CleanupReviewCadence cadence);
    bool selectProfile(CleanupReviewProfileID id);
    bool markReviewed(Platform::Date at = Platform::Date::now());

    /// Takes over what somebody else has stored. It is called for each change that the preferences tell of.
    void refresh();

Q_SIGNALS:
    void cadenceChanged();
    void selectedProfileIDChanged();
    void lastReviewedAtChanged();

private:
    bool save(std::string_view key, Platform::DefaultsValue value);

    Platform::UserDefaults& m_defaults;
    CleanupReviewPreferences m_preferences;
    Platform::UserDefaults::Observation m_observation;
};

} // namespace KarvelloUI
