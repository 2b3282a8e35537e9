#pragma once

#include "CleanerCore/Scan/CleanupScanMode.h"
#include "KarvelloUI/Copy/AppLanguage.h"
#include "KarvelloUI/Dashboard/DashboardWords.h"
#include "KarvelloUI/Design/KarvelloAppearanceMode.h"
#include "KarvelloUI/Design/KarvelloTextScale.h"
#include "Platform/Services/UserDefaults.h"

#include <QObject>
#include <string>
#include <string_view>
#include <vector>

namespace KarvelloUI {

/// What the user has chosen for the window, in memory as it is stored, whoever stored it. A choice that cannot be stored
/// does not count. Main thread only.
class DashboardPreferences final : public QObject {
    Q_OBJECT

public:
    static constexpr std::string_view scanModeDefaultsKey = "karvello.macScanMode";
    static constexpr std::string_view onboardingCompletedDefaultsKey = "karvello.macOnboardingCompleted.v1";
    static constexpr std::string_view advancedExpandedDefaultsKey = "karvello.macAdvancedExpanded";

    /// Reads what is stored. `defaults` must outlive this object; the identifiers are the system's languages, the most
    /// wanted first.
    DashboardPreferences(
        Platform::UserDefaults& defaults, std::vector<std::string> preferredLanguages, QObject* parent = nullptr);

    [[nodiscard]] AppLanguage language() const { return m_values.language; }
    /// The texts in this language.
    [[nodiscard]] DashboardWords words() const { return DashboardWords(m_values.language); }
    [[nodiscard]] KarvelloAppearanceMode appearanceMode() const { return m_values.appearanceMode; }
    [[nodiscard]] KarvelloTextScale textScale() const { return m_values.textScale; }
    /// As it is stored: a build may not offer it.
    [[nodiscard]] CleanerCore::CleanupScanMode scanMode() const { return m_values.scanMode; }
    [[nodiscard]] bool isOnboardingCompleted() const { return m_values.isOnboardingCompleted; }
    [[nodiscard]] bool isAdvancedExpanded() const { return m_values.isAdvancedExpanded; }

    /// Each tells whether it is stored now.
    bool setLanguage(AppLanguage language);
    bool setAppearanceMode(KarvelloAppearanceMode mode);
    bool setTextScale(KarvelloTextScale scale);
    bool setScanMode(CleanerCore::CleanupScanMode mode);
    /// The first run is over, for as long as this object at least: it would hold up a user whose home takes no files.
    bool completeOnboarding();
    bool setAdvancedExpanded(bool isExpanded);

Q_SIGNALS:
    void languageChanged();
    void appearanceModeChanged();
    void textScaleChanged();
    void scanModeChanged();
    void onboardingCompletedChanged();
    void advancedExpandedChanged();

private:
    struct Values {
        AppLanguage language = AppLanguage::english;
        KarvelloAppearanceMode appearanceMode = KarvelloAppearanceMode::system;
        KarvelloTextScale textScale = KarvelloTextScaleKey::defaultValue;
        CleanerCore::CleanupScanMode scanMode = CleanerCore::CleanupScanMode::standard;
        bool isOnboardingCompleted = false;
        bool isAdvancedExpanded = false;
    };

    [[nodiscard]] Values read() const;
    void refresh();
    bool save(std::string_view key, Platform::DefaultsValue value);

    Platform::UserDefaults& m_defaults;
    std::vector<std::string> m_preferredLanguages;
    bool m_isOnboardingOver = false;
    Values m_values;
    Platform::UserDefaults::Observation m_observation;
};

} // namespace KarvelloUI
