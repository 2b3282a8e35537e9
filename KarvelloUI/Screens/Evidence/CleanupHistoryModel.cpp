#include "KarvelloUI/Screens/Evidence/CleanupHistoryModel.h"

namespace KarvelloUI {

CleanupHistoryModel::CleanupHistoryModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
    , m_rows(dashboard)
    , m_exportMenu(dashboard, ExportMenuModel::Source::auditLog)
    , m_refresh(dashboard, {MacDashboardSection::reviewEvidence}, [this] { refresh(); })
{
    connect(&dashboard, &MacCleanerDashboardModel::auditEntriesChanged, this, [this] { m_refresh.request(); });
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this, [this] {
        m_rows.showOtherWords();
        Q_EMIT changed();
    });
    refresh();
}

void CleanupHistoryModel::refresh()
{
    m_rows.show(m_dashboard.auditEntries());
    Q_EMIT changed();
}

QString CleanupHistoryModel::title() const
{
    return shown(m_dashboard.words().auditLogTitle());
}

QString CleanupHistoryModel::emptyText() const
{
    const auto words = m_dashboard.words();
    return m_rows.rowCount() > 0 ? QString() : shown(isLoading() ? words.auditLogLoading() : words.auditLogEmpty());
}

QString CleanupHistoryModel::openName() const
{
    return shown(m_dashboard.words().text("세부 정보 보기", "Show details"));
}

} // namespace KarvelloUI
