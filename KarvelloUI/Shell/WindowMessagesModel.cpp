#include "KarvelloUI/Shell/WindowMessagesModel.h"

#include "KarvelloUI/Sessions/ShownText.h"

#include <QPointer>
#include <algorithm>

namespace KarvelloUI {

WindowMessagesModel::WindowMessagesModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
{
    connect(&dashboard, &MacCleanerDashboardModel::accessChanged, this, &WindowMessagesModel::accessChanged);
    connect(&dashboard, &MacCleanerDashboardModel::selectedSectionChanged, this, &WindowMessagesModel::accessChanged);
    for (const PreferenceStore* const store : storesOfTheSettings()) {
        connect(store, &PreferenceStore::lastErrorMessageChanged, this, &WindowMessagesModel::accessChanged);
    }
    connect(&dashboard, &MacCleanerDashboardModel::alertChanged, this, &WindowMessagesModel::alertChanged);
    connect(&dashboard, &MacCleanerDashboardModel::noticeChanged, this, &WindowMessagesModel::noticeChanged);
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this, [this] {
        Q_EMIT accessChanged();
        Q_EMIT wordsChanged();
    });
}

std::array<const PreferenceStore*, 3> WindowMessagesModel::storesOfTheSettings() const
{
    return {&m_dashboard.homeAccess(), &m_dashboard.ignoreStore(), &m_dashboard.customFolders()};
}

bool WindowMessagesModel::asksForAccess() const
{
    const bool isToldInTheSettings = m_dashboard.selectedSection() == MacDashboardSection::settings
        && std::ranges::any_of(
            storesOfTheSettings(), [](const PreferenceStore* store) { return store->lastErrorMessage().has_value(); });
    return isAccessMissing() && !isToldInTheSettings;
}

QString WindowMessagesModel::accessTitle() const
{
    return shown(m_dashboard.words().homeAccessOnboardingTitle());
}

QString WindowMessagesModel::accessText() const
{
    const auto& failure = m_dashboard.homeAccess().lastErrorMessage();
    const auto words = m_dashboard.words();
    return failure ? shownText(words.skippedReason(*failure)) : shown(words.homeAccessOnboardingMessage());
}

QString WindowMessagesModel::accessActionText() const
{
    return shown(m_dashboard.words().homeAccessGrantButton());
}

void WindowMessagesModel::grantAccess()
{
    const auto section = m_dashboard.selectedSection();
    m_dashboard.requestHomeAccess([model = QPointer(this), section](bool isGranted) {
        if (isGranted && model) {
            model->scanFor(section);
        }
    });
}

void WindowMessagesModel::scanFor(MacDashboardSection section)
{
    switch (section) {
    case MacDashboardSection::cleanup:
        m_dashboard.scanCleanup();
        return;
    case MacDashboardSection::heatmap:
    case MacDashboardSection::largeFiles:
    case MacDashboardSection::downloads:
    case MacDashboardSection::duplicates:
    case MacDashboardSection::security:
        m_dashboard.scanInsights();
        return;
    case MacDashboardSection::dashboard:
    case MacDashboardSection::reviewEvidence:
    case MacDashboardSection::system:
    case MacDashboardSection::cpuAnalysis:
    case MacDashboardSection::memoryAnalysis:
    case MacDashboardSection::iosGuide:
    case MacDashboardSection::settings:
        return;
    }
}

QString WindowMessagesModel::alertTitle() const
{
    return hasAlert() ? m_dashboard.alert()->title : QString();
}

QString WindowMessagesModel::alertText() const
{
    return hasAlert() ? m_dashboard.alert()->message : QString();
}

QString WindowMessagesModel::okText() const
{
    return shown(m_dashboard.words().okButtonTitle());
}

QString WindowMessagesModel::noticeTitle() const
{
    return hasNotice() ? m_dashboard.notice()->title : QString();
}

QString WindowMessagesModel::noticeText() const
{
    return hasNotice() ? m_dashboard.notice()->message : QString();
}

QString WindowMessagesModel::closeText() const
{
    return shown(m_dashboard.words().say("Close"));
}

} // namespace KarvelloUI
