#include "KarvelloUI/Screens/Settings/SettingsAppearanceModel.h"

#include "KarvelloUI/Copy/KarvelloLocalizer.h"
#include "KarvelloUI/Dashboard/ChoiceNotices.h"
#include "KarvelloUI/Dashboard/PickerChoices.h"

namespace KarvelloUI {

SettingsAppearanceModel::SettingsAppearanceModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
{
    connect(&preferences(), &DashboardPreferences::languageChanged, this, &SettingsAppearanceModel::changed);
    connect(&preferences(), &DashboardPreferences::appearanceModeChanged, this, &SettingsAppearanceModel::changed);
    connect(&preferences(), &DashboardPreferences::textScaleChanged, this, &SettingsAppearanceModel::changed);
}

QString SettingsAppearanceModel::title() const
{
    return shown(m_dashboard.words().text("화면 모드", "Appearance"));
}

QString SettingsAppearanceModel::languageTitle() const
{
    return shown(m_dashboard.words().languageTitle());
}

QString SettingsAppearanceModel::languageText() const
{
    return shown(KarvelloLocalizer{preferences().language()}.string(KarvelloI18nKey::settingsLanguageBody));
}

QVariantList SettingsAppearanceModel::languages() const
{
    return pickerChoices(Platform::allCases<AppLanguage>(), [](AppLanguage language) { return displayName(language); });
}

QString SettingsAppearanceModel::language() const
{
    return rawText(preferences().language());
}

QString SettingsAppearanceModel::appearanceTitle() const
{
    return shown(m_dashboard.words().text("앱 화면 모드", "App appearance mode"));
}

QString SettingsAppearanceModel::appearanceText() const
{
    return shown(m_dashboard.words().say("Follow the desktop, or keep this app in Light or Dark."));
}

QVariantList SettingsAppearanceModel::appearances() const
{
    const auto words = m_dashboard.words();
    return pickerChoices(Platform::allCases<KarvelloAppearanceMode>(), [&words](KarvelloAppearanceMode mode) {
        switch (mode) {
        case KarvelloAppearanceMode::system:
            break;
        case KarvelloAppearanceMode::light:
            return words.text("라이트", "Light");
        case KarvelloAppearanceMode::dark:
            return words.text("다크", "Dark");
        }
        return words.text("시스템", "System");
    });
}

QString SettingsAppearanceModel::appearance() const
{
    return rawText(preferences().appearanceMode());
}

QString SettingsAppearanceModel::textSizeTitle() const
{
    return shown(m_dashboard.words().text("글자 크기", "Text size"));
}

QString SettingsAppearanceModel::textSizeText() const
{
    return shown(m_dashboard.words().say("For the dashboard and the status panel."));
}

QVariantList SettingsAppearanceModel::textSizes() const
{
    const auto words = m_dashboard.words();
    return pickerChoices(Platform::allCases<KarvelloTextScale>(), [&words](KarvelloTextScale scale) {
        switch (scale) {
        case KarvelloTextScale::standard:
            break;
        case KarvelloTextScale::large:
            return words.text("크게", "Large");
        case KarvelloTextScale::extraLarge:
            return words.text("아주 크게", "Extra Large");
        }
        return words.text("표준", "Standard");
    });
}

QString SettingsAppearanceModel::textSize() const
{
    return rawText(preferences().textScale());
}

void SettingsAppearanceModel::chooseLanguage(const QString& value)
{
    if (const auto language = fromRawText<AppLanguage>(value)) {
        noticeUnlessStored(m_dashboard, preferences().setLanguage(*language));
    }
}

void SettingsAppearanceModel::chooseAppearance(const QString& value)
{
    if (const auto mode = fromRawText<KarvelloAppearanceMode>(value)) {
        noticeUnlessStored(m_dashboard, preferences().setAppearanceMode(*mode));
    }
}

void SettingsAppearanceModel::chooseTextSize(const QString& value)
{
    if (const auto scale = fromRawText<KarvelloTextScale>(value)) {
        noticeUnlessStored(m_dashboard, preferences().setTextScale(*scale));
    }
}

} // namespace KarvelloUI
