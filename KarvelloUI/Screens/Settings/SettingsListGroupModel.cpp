#include "KarvelloUI/Screens/Settings/SettingsListGroupModel.h"

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

} // namespace KarvelloUI
