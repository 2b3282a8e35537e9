#include "KarvelloUI/Dashboard/DashboardPreferences.h"

#include <QMetaObject>
#include <algorithm>
#include <array>
#include <span>
#include <utility>

namespace KarvelloUI {

namespace {

template <typename Choice>
Choice storedChoice(const Platform::UserDefaults& defaults, std::string_view key, Choice otherwise)
{
    const auto stored = defaults.string(key);
    return stored ? Platform::fromRawValue<Choice>(*stored).value_or(otherwise) : otherwise;
}

} // namespace

DashboardPreferences::DashboardPreferences(
    Platform::UserDefaults& defaults, std::vector<std::string> preferredLanguages, QObject* parent)
    : QObject(parent)
    , m_defaults(defaults)
    , m_preferredLanguages(std::move(preferredLanguages))
    , m_values(read())
{
    // The observer may be called on any thread.
    m_observation = defaults.observe([this](std::span<const std::string> keys) {
        constexpr std::array kKeys{kLanguageStorageKey, kAppearanceModeKey, KarvelloTextScaleKey::storageKey,
            scanModeDefaultsKey, onboardingCompletedDefaultsKey, advancedExpandedDefaultsKey};
        if (std::ranges::find_first_of(keys, kKeys) != keys.end()) {
            QMetaObject::invokeMethod(this, [this] { refresh(); }, Qt::QueuedConnection);
        }
    });
}

bool DashboardPreferences::setLanguage(AppLanguage language)
{
    return save(kLanguageStorageKey, std::string(Platform::rawValue(language)));
}

bool DashboardPreferences::setAppearanceMode(KarvelloAppearanceMode mode)
{
    return save(kAppearanceModeKey, std::string(Platform::rawValue(mode)));
}

bool DashboardPreferences::setTextScale(KarvelloTextScale scale)
{
    return save(KarvelloTextScaleKey::storageKey, std::string(Platform::rawValue(scale)));
}

bool DashboardPreferences::setScanMode(CleanerCore::CleanupScanMode mode)
{
    return save(scanModeDefaultsKey, std::string(Platform::rawValue(mode)));
}

bool DashboardPreferences::completeOnboarding()
{
    m_isOnboardingOver = true;
    const bool isStored = save(onboardingCompletedDefaultsKey, true);
    if (!isStored) {
        refresh();
    }
    return isStored;
}

bool DashboardPreferences::setAdvancedExpanded(bool isExpanded)
{
    return save(advancedExpandedDefaultsKey, isExpanded);
}

bool DashboardPreferences::save(std::string_view key, Platform::DefaultsValue value)
{
    if (!m_defaults.set(key, std::move(value))) {
        return false;
    }
    refresh();
    return true;
}

DashboardPreferences::Values DashboardPreferences::read() const
{
    const Values usual;
    return {
        .language = persistedLanguage(m_defaults, m_preferredLanguages),
        .appearanceMode = storedChoice(m_defaults, kAppearanceModeKey, usual.appearanceMode),
        .textScale = storedChoice(m_defaults, KarvelloTextScaleKey::storageKey, usual.textScale),
        .scanMode = storedChoice(m_defaults, scanModeDefaultsKey, usual.scanMode),
        .isOnboardingCompleted =
            m_isOnboardingOver || m_defaults.boolean(onboardingCompletedDefaultsKey).value_or(false),
        .isAdvancedExpanded = m_defaults.boolean(advancedExpandedDefaultsKey).value_or(false),
    };
}

void DashboardPreferences::refresh()
{
    const Values old = std::exchange(m_values, read());
    // An observer of one choice sees the others as they are now, and may make another.
    const Values now = m_values;
    if (now.language != old.language) {
        Q_EMIT languageChanged();
    }
    if (now.appearanceMode != old.appearanceMode) {
        Q_EMIT appearanceModeChanged();
    }
    if (now.textScale != old.textScale) {
        Q_EMIT textScaleChanged();
    }
    if (now.scanMode != old.scanMode) {
        Q_EMIT scanModeChanged();
    }
    if (now.isOnboardingCompleted != old.isOnboardingCompleted) {
        Q_EMIT onboardingCompletedChanged();
    }
    if (now.isAdvancedExpanded != old.isAdvancedExpanded) {
        Q_EMIT advancedExpandedChanged();
    }
}

} // namespace KarvelloUI
