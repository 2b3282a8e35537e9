#include "KarvelloUI/Screens/Home/ShownRefresh.h"

#include <utility>

namespace KarvelloUI {

ShownRefresh::ShownRefresh(
    MacCleanerDashboardModel& dashboard, std::set<MacDashboardSection> sections, std::function<void()> refresh)
    : m_dashboard(dashboard)
    , m_sections(std::move(sections))
    , m_refresh(std::move(refresh))
{
    connect(&m_dashboard, &MacCleanerDashboardModel::selectedSectionChanged, this, &ShownRefresh::refreshIfShown);
}

void ShownRefresh::request()
{
    m_isWanted = true;
    refreshIfShown();
}

void ShownRefresh::refreshIfShown()
{
    if (m_isWanted && m_sections.contains(m_dashboard.selectedSection())) {
        m_isWanted = false;
        m_refresh();
    }
}

} // namespace KarvelloUI
