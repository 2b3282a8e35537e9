#include "KarvelloUI/Screens/Settings/SettingsListGroupModel.h"

#include "KarvelloUI/Sessions/ShownText.h"

namespace KarvelloUI {

SettingsListGroupModel::SettingsListGroupModel(
    MacCleanerDashboardModel& dashboard, PreferenceStore& store, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
    , m_store(store)
{
    connect(&store, &PreferenceStore::lastErrorMessageChanged, this, &SettingsListGroupModel::changed);
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this, [this] { refresh(); });
}

QString SettingsListGroupModel::errorText() const
{
    return shownText(m_dashboard.words().skippedReason(m_store.lastErrorMessage().value_or(std::string())));
}

} // namespace KarvelloUI
