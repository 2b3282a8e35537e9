#include "KarvelloUI/Screens/Settings/SettingsScanModel.h"

#include "KarvelloUI/Dashboard/ChoiceNotices.h"
#include "KarvelloUI/Dashboard/PickerChoices.h"
#include "KarvelloUI/Sessions/ShownText.h"
#include "Platform/Base/HomePathAbbreviation.h"
#include "Platform/Base/LocalizedText.h"

#include <algorithm>

namespace KarvelloUI {

SettingsScanModel::SettingsScanModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
{
    const auto& preferences = dashboard.preferences();
    connect(&preferences, &DashboardPreferences::languageChanged, this, &SettingsScanModel::changed);
    connect(&preferences, &DashboardPreferences::scanModeChanged, this, &SettingsScanModel::changed);
    connect(&dashboard, &MacCleanerDashboardModel::accessChanged, this, &SettingsScanModel::changed);
    connect(&dashboard.insights(), &MacInsightsViewModel::phaseChanged, this, &SettingsScanModel::changed);
    connect(&dashboard.homeAccess(), &PreferenceStore::lastErrorMessageChanged, this, &SettingsScanModel::changed);
}

QString SettingsScanModel::title() const
{
    return shown(m_dashboard.words().text("스캔 설정", "Scan Settings"));
}

QString SettingsScanModel::modeTitle() const
{
    return shown(m_dashboard.words().scanModeTitle());
}

QString SettingsScanModel::modeText() const
{
    const auto words = m_dashboard.words();
    return shownLines(words.scanModeAccessibilityHint(m_dashboard.services().supportsDirectDistributionScans()) + "\n"
        + words.say("Changing the mode clears the results on show."));
}

QVariantList SettingsScanModel::modes() const
{
    const auto words = m_dashboard.words();
    return pickerChoices(CleanerCore::availableModes(m_dashboard.services().supportsDirectDistributionScans()),
        [&words](CleanerCore::CleanupScanMode mode) { return words.scanModeName(mode); });
}

QString SettingsScanModel::mode() const
{
    return rawText(m_dashboard.scanMode());
}

QString SettingsScanModel::modeDisabledReason() const
{
    return shown(m_dashboard.words().say("The mode can be changed once the current operation has ended."));
}

QString SettingsScanModel::accessTitle() const
{
    return shown(m_dashboard.words().homeAccessOnboardingTitle());
}

QString SettingsScanModel::accessText() const
{
    const auto words = m_dashboard.words();
    const auto& grant = m_dashboard.homeAccess().bookmark();
    if (grant) {
        const auto path =
            Platform::HomePathAbbreviation(m_dashboard.services().homeDirectory).abbreviate(grant->fallbackPath);
        return shown(words.homeAccessGrantedStatus()) + QLatin1Char('\n') + shownText(path)
            + shown(" · "
                + words.say("Granted {}", Platform::LocalizedText::mediumMoment(grant->createdAt, words.locale())));
    }
    return shown(isGrantNeeded()
            ? words.homeAccessOnboardingMessage()
            : words.say("Karvello looks at your home with your own permissions. If results look empty or something "
                        "could not be read, check who owns the skipped folders."));
}

QString SettingsScanModel::grantText() const
{
    const auto words = m_dashboard.words();
    return shown(isGranted() ? words.dashboardAccessButtonTitle(true) : words.homeAccessGrantButton());
}

QString SettingsScanModel::revokeText() const
{
    return shown(m_dashboard.words().homeAccessRevokeButton());
}

QString SettingsScanModel::errorText() const
{
    return shownText(m_dashboard.words().skippedReason(m_dashboard.homeAccess().lastErrorMessage().value_or("")));
}

void SettingsScanModel::chooseMode(const QString& value)
{
    const auto picked = fromRawText<CleanerCore::CleanupScanMode>(value);
    const auto available = CleanerCore::availableModes(m_dashboard.services().supportsDirectDistributionScans());
    if (picked && isModeEnabled() && std::ranges::find(available, *picked) != available.end()) {
        noticeUnlessStored(m_dashboard, m_dashboard.preferences().setScanMode(*picked));
    }
}

void SettingsScanModel::grant()
{
    m_dashboard.requestHomeAccess();
}

void SettingsScanModel::revoke()
{
    m_dashboard.homeAccess().clearBookmark();
}

void SettingsScanModel::dismissError()
{
    m_dashboard.homeAccess().clearError();
}

} // namespace KarvelloUI
