#include "KarvelloMac/PreferredText.h"

#include <QObject>

namespace KarvelloMac {

using KarvelloUI::AppLanguage;
using KarvelloUI::DashboardPreferences;
using KarvelloUI::TextScript;

namespace {

TextScript scriptOf(AppLanguage language)
{
    switch (language) {
    case AppLanguage::korean:
    case AppLanguage::japanese:
    case AppLanguage::simplifiedChinese:
    case AppLanguage::traditionalChinese:
        return TextScript::cjk;
    case AppLanguage::english:
    case AppLanguage::spanish:
    case AppLanguage::french:
    case AppLanguage::german:
        break;
    }
    return TextScript::alphabetic;
}

} // namespace

void followPreferredText(KarvelloUI::DesignTokens& design, const DashboardPreferences& preferences)
{
    const auto follow = [&design, &preferences] {
        design.setTextEnvironment({.scale = preferences.textScale(), .script = scriptOf(preferences.language())});
    };
    QObject::connect(&preferences, &DashboardPreferences::textScaleChanged, &design, follow);
    QObject::connect(&preferences, &DashboardPreferences::languageChanged, &design, follow);
    follow();
}

} // namespace KarvelloMac
