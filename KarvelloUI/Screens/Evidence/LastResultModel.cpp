#include "KarvelloUI/Screens/Evidence/LastResultModel.h"

#include <utility>
#include <vector>

namespace KarvelloUI {

using CleanerCore::CleaningMode;

namespace {

FailedItemList::Row rowOf(const CleanerCore::CleanupCandidate& candidate, const std::string& reason)
{
    return {.name = candidate.displayName, .url = candidate.url, .reason = reason};
}

std::vector<FailedItemList::Row> failedRows(const CleanerViewModel& session, LastResultModel::Run run)
{
    std::vector<FailedItemList::Row> rows;
    if (run == LastResultModel::Run::clean && session.lastCleanResult()) {
        for (const auto& failed : session.lastCleanResult()->failedItems) {
            rows.push_back(rowOf(failed.candidate, failed.reason));
        }
    } else if (run == LastResultModel::Run::restore && session.lastRestoreResult()) {
        for (const auto& failed : session.lastRestoreResult()->failedItems) {
            rows.push_back(rowOf(failed.cleanedItem.candidate, failed.reason));
        }
    }
    return rows;
}

} // namespace

LastResultModel::LastResultModel(MacCleanerDashboardModel& dashboard, Run run, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
    , m_run(run)
    , m_failedItems(dashboard)
    , m_refresh(dashboard, {MacDashboardSection::reviewEvidence}, [this] { refresh(); })
{
    connect(&dashboard.cleaner(), &CleanerViewModel::resultsChanged, this, [this] { m_refresh.request(); });
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this, [this] {
        m_failedItems.showOtherWords();
        Q_EMIT changed();
    });
    refresh();
}

void LastResultModel::refresh()
{
    m_failedItems.show(failedRows(m_dashboard.cleaner(), m_run));
    Q_EMIT changed();
}

bool LastResultModel::hasResult() const
{
    const auto& session = m_dashboard.cleaner();
    return m_run == Run::clean ? session.lastCleanResult().has_value() : session.lastRestoreResult().has_value();
}

QString LastResultModel::title() const
{
    const auto words = m_dashboard.words();
    return shown(m_run == Run::clean ? words.lastCleanTitle(CleaningMode::moveToTrash) : words.lastRestoreTitle());
}

QString LastResultModel::subtitle() const
{
    if (!hasResult()) {
        return {};
    }
    const auto words = m_dashboard.words();
    const auto& session = m_dashboard.cleaner();
    return shown(m_run == Run::clean ? words.lastCleanSubtitle(*session.lastCleanResult(), CleaningMode::moveToTrash)
                                     : words.lastRestoreSubtitle(*session.lastRestoreResult()));
}

QString LastResultModel::failedTitle() const
{
    if (m_failedItems.rowCount() == 0) {
        return {};
    }
    const auto words = m_dashboard.words();
    return shown(m_run == Run::clean ? words.say("Not moved") : words.say("Not restored"));
}

} // namespace KarvelloUI
