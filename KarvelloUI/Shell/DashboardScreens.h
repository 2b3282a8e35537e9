#pragma once

#include "KarvelloUI/Dashboard/ConfirmationModel.h"
#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"
#include "KarvelloUI/Screens/Cleanup/CleanupScreenModel.h"
#include "KarvelloUI/Screens/Duplicates/DuplicatesScreenModel.h"
#include "KarvelloUI/Screens/Evidence/EvidenceScreenModel.h"
#include "KarvelloUI/Screens/Home/HomeScreenModel.h"
#include "KarvelloUI/Screens/IOSGuide/IOSGuideScreenModel.h"
#include "KarvelloUI/Screens/Insights/InsightListScreenModel.h"
#include "KarvelloUI/Screens/Onboarding/OnboardingScreenModel.h"
#include "KarvelloUI/Screens/Settings/SettingsScreenModel.h"
#include "KarvelloUI/Screens/StorageMap/StorageMapScreenModel.h"
#include "KarvelloUI/Screens/System/ReliefScreenModel.h"
#include "KarvelloUI/Screens/System/SystemScreenModel.h"
#include "KarvelloUI/Shell/SidebarModel.h"
#include "KarvelloUI/Shell/WindowMessagesModel.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace KarvelloUI {

/// What the window shows: one model for each screen. Main thread only.
class DashboardScreens final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made with the window")
    /// The raw value of the section on show.
    Q_PROPERTY(QString selectedSection READ selectedSection NOTIFY selectedSectionChanged FINAL)
    /// The first run takes the place of all sections.
    Q_PROPERTY(bool isOnboardingShown READ isOnboardingShown NOTIFY onboardingShownChanged FINAL)
    Q_PROPERTY(KarvelloUI::SidebarModel* sidebar READ sidebar CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::WindowMessagesModel* messages READ messages CONSTANT FINAL)
    Q_PROPERTY(QObject* confirmation READ confirmation CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::OnboardingScreenModel* onboarding READ onboarding CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::HomeScreenModel* home READ home CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::CleanupScreenModel* cleanup READ cleanup CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::EvidenceScreenModel* evidence READ evidence CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::StorageMapScreenModel* storageMap READ storageMap CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::InsightListScreenModel* largeFiles READ largeFiles CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::InsightListScreenModel* downloads READ downloads CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::DuplicatesScreenModel* duplicates READ duplicates CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::InsightListScreenModel* installers READ installers CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::SystemScreenModel* system READ system CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::ReliefScreenModel* cpuAnalysis READ cpuAnalysis CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::ReliefScreenModel* memoryAnalysis READ memoryAnalysis CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::IOSGuideScreenModel* iosGuide READ iosGuide CONSTANT FINAL)
    Q_PROPERTY(KarvelloUI::SettingsScreenModel* settings READ settings CONSTANT FINAL)

public:
    /// `dashboard` outlives the screens.
    explicit DashboardScreens(MacCleanerDashboardModel& dashboard, QObject* parent = nullptr);

    [[nodiscard]] QString selectedSection() const { return m_dashboard.selectedSectionText(); }
    [[nodiscard]] bool isOnboardingShown() const { return !m_dashboard.preferences().isOnboardingCompleted(); }
    [[nodiscard]] SidebarModel* sidebar() { return &m_sidebar; }
    [[nodiscard]] WindowMessagesModel* messages() { return &m_messages; }
    [[nodiscard]] QObject* confirmation() { return &m_confirmation; }
    [[nodiscard]] OnboardingScreenModel* onboarding() { return &m_onboarding; }
    [[nodiscard]] HomeScreenModel* home() { return &m_home; }
    [[nodiscard]] CleanupScreenModel* cleanup() { return &m_cleanup; }
    [[nodiscard]] EvidenceScreenModel* evidence() { return &m_evidence; }
    [[nodiscard]] StorageMapScreenModel* storageMap() { return &m_storageMap; }
    [[nodiscard]] InsightListScreenModel* largeFiles() { return &m_largeFiles; }
    [[nodiscard]] InsightListScreenModel* downloads() { return &m_downloads; }
    [[nodiscard]] DuplicatesScreenModel* duplicates() { return &m_duplicates; }
    [[nodiscard]] InsightListScreenModel* installers() { return &m_installers; }
    [[nodiscard]] SystemScreenModel* system() { return &m_system; }
    [[nodiscard]] ReliefScreenModel* cpuAnalysis() { return &m_cpuAnalysis; }
    [[nodiscard]] ReliefScreenModel* memoryAnalysis() { return &m_memoryAnalysis; }
    [[nodiscard]] IOSGuideScreenModel* iosGuide() { return &m_iosGuide; }
    [[nodiscard]] SettingsScreenModel* settings() { return &m_settings; }

Q_SIGNALS:
    void selectedSectionChanged();
    void onboardingShownChanged();

private:
    MacCleanerDashboardModel& m_dashboard;
    SidebarModel m_sidebar;
    WindowMessagesModel m_messages;
    ConfirmationModel m_confirmation;
    OnboardingScreenModel m_onboarding;
    HomeScreenModel m_home;
    CleanupScreenModel m_cleanup;
    EvidenceScreenModel m_evidence;
    StorageMapScreenModel m_storageMap;
    InsightListScreenModel m_largeFiles;
    InsightListScreenModel m_downloads;
    DuplicatesScreenModel m_duplicates;
    InsightListScreenModel m_installers;
    SystemScreenModel m_system;
    ReliefScreenModel m_cpuAnalysis;
    ReliefScreenModel m_memoryAnalysis;
    IOSGuideScreenModel m_iosGuide;
    SettingsScreenModel m_settings;
};

} // namespace KarvelloUI
