#include "KarvelloUI/Screens/Settings/SettingsIgnoreModel.h"

#include <string>

namespace KarvelloUI {

SettingsIgnoreModel::SettingsIgnoreModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : SettingsListGroupModel(dashboard, dashboard.ignoreStore(), parent)
{
    connect(&dashboard.ignoreStore(), &CleanupIgnoreStore::itemsChanged, this, &SettingsIgnoreModel::refresh);
    // A rule may have come to its end meanwhile.
    connect(&dashboard, &MacCleanerDashboardModel::selectedSectionChanged, this, &SettingsIgnoreModel::refresh);
    refresh();
}

QString SettingsIgnoreModel::title() const
{
    return shown(dashboard().words().ignoredCandidatesTitle());
}

QString SettingsIgnoreModel::text() const
{
    return shown(dashboard().words().ignoredCandidatesDescription());
}

QString SettingsIgnoreModel::emptyText() const
{
    return shown(dashboard().words().ignoredCandidatesEmpty());
}

QString SettingsIgnoreModel::countText() const
{
    return shown(dashboard().words().ignoredCandidatesSummary(m_items.rowCount()));
}

QString SettingsIgnoreModel::showAgainText() const
{
    return shown(dashboard().words().showIgnoredCandidateAgain());
}

QString SettingsIgnoreModel::clearText() const
{
    return shown(dashboard().words().clearIgnoredCandidates());
}

void SettingsIgnoreModel::showAgain(int place)
{
    if (const auto* const item = m_items.row(place)) {
        // A copy: the row goes with the item.
        dashboard().cleaner().removeIgnoredItem(std::string(item->id));
        // Somebody else may have taken it out before.
        refresh();
    }
}

void SettingsIgnoreModel::clear()
{
    dashboard().cleaner().clearIgnoredItems();
    refresh();
}

void SettingsIgnoreModel::refresh()
{
    const auto& services = dashboard().services();
    m_items.showItems(
        dashboard().ignoreStore().activeItems(services.session.now()), services.homeDirectory, dashboard().words());
    Q_EMIT changed();
}

} // namespace KarvelloUI
