#include "KarvelloUI/Shell/DashboardScreens.h"

namespace KarvelloUI {

DashboardScreens::DashboardScreens(MacCleanerDashboardModel& dashboard, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
    , m_sidebar(dashboard)
    , m_messages(dashboard)
    , m_confirmation(dashboard)
    , m_onboarding(dashboard)
    , m_home(dashboard)
    , m_cleanup(dashboard)
    , m_evidence(dashboard)
    , m_storageMap(dashboard)
    , m_largeFiles(dashboard, MacInsightFileSection::largeFiles)
    , m_downloads(dashboard, MacInsightFileSection::downloads)
    , m_duplicates(dashboard)
    , m_installers(dashboard, MacInsightFileSection::security)
    , m_system(dashboard)
    , m_cpuAnalysis(dashboard, ResourceReliefMetric::cpu)
    , m_memoryAnalysis(dashboard, ResourceReliefMetric::memory)
    , m_iosGuide(dashboard)
    , m_settings(dashboard)
{
    connect(
        &dashboard, &MacCleanerDashboardModel::selectedSectionChanged, this, &DashboardScreens::selectedSectionChanged);
    connect(&dashboard.preferences(), &DashboardPreferences::onboardingCompletedChanged, this,
        &DashboardScreens::onboardingShownChanged);
}

} // namespace KarvelloUI
