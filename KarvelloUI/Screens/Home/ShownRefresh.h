#pragma once

#include "KarvelloUI/Dashboard/MacCleanerDashboardModel.h"

#include <QObject>
#include <functional>
#include <set>

namespace KarvelloUI {

/// Does work for a panel at once while one of its sections is on show, and otherwise once for all requests, when one is
/// on show again.
class ShownRefresh final : public QObject {
    Q_OBJECT

public:
    /// `dashboard` outlives this object; what `refresh` needs, too.
    ShownRefresh(
        MacCleanerDashboardModel& dashboard, std::set<MacDashboardSection> sections, std::function<void()> refresh);

    /// For the work; it may be done before this returns.
    void request();

private:
    void refreshIfShown();

    MacCleanerDashboardModel& m_dashboard;
    std::set<MacDashboardSection> m_sections;
    std::function<void()> m_refresh;
    bool m_isWanted = true;
};

} // namespace KarvelloUI
