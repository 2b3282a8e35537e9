#include "KarvelloUI/Screens/Settings/SettingsIgnoreModel.h"

#include "KarvelloUI/Sessions/ShownText.h"
#include "Platform/Base/HomePathAbbreviation.h"
#include "Platform/Base/LocalizedText.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace KarvelloUI {

SettingsIgnoreModel::SettingsIgnoreModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
{
    connect(&dashboard.ignoreStore(), &CleanupIgnoreStore::itemsChanged, this, &SettingsIgnoreModel::refresh);
    connect(&dashboard.ignoreStore(), &PreferenceStore::lastErrorMessageChanged, this, &SettingsIgnoreModel::changed);
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this, &SettingsIgnoreModel::refresh);
    // A rule may have come to its end meanwhile.
    connect(&dashboard, &MacCleanerDashboardModel::selectedSectionChanged, this, &SettingsIgnoreModel::refresh);
    refresh();
}

QString SettingsIgnoreModel::title() const
{
    return shown(m_dashboard.words().ignoredCandidatesTitle());
}

QString SettingsIgnoreModel::text() const
{
    return shown(m_dashboard.words().ignoredCandidatesDescription());
}

QString SettingsIgnoreModel::emptyText() const
{
    return shown(m_dashboard.words().ignoredCandidatesEmpty());
}

QString SettingsIgnoreModel::countText() const
{
    return shown(m_dashboard.words().ignoredCandidatesSummary(count()));
}

QString SettingsIgnoreModel::showAgainText() const
{
    return shown(m_dashboard.words().showIgnoredCandidateAgain());
}

QString SettingsIgnoreModel::clearText() const
{
    return shown(m_dashboard.words().clearIgnoredCandidates());
}

QString SettingsIgnoreModel::errorText() const
{
    return shownText(m_dashboard.ignoreStore().lastErrorMessage().value_or(std::string()));
}

void SettingsIgnoreModel::showAgain(int row)
{
    if (row >= 0 && row < count()) {
        const auto id = m_items.rows()[static_cast<std::size_t>(row)].id;
        m_dashboard.cleaner().removeIgnoredItem(id);
        // Somebody else may have taken it out before.
        refresh();
    }
}

void SettingsIgnoreModel::clear()
{
    m_dashboard.cleaner().clearIgnoredItems();
    refresh();
}

void SettingsIgnoreModel::dismissError()
{
    m_dashboard.ignoreStore().clearError();
}

void SettingsIgnoreModel::refresh()
{
    const auto words = m_dashboard.words();
    const Platform::HomePathAbbreviation home(m_dashboard.services().homeDirectory);
    std::vector<IgnoreListRow> rows;
    for (const auto& item : m_dashboard.ignoreStore().activeItems(m_dashboard.services().session.now())) {
        const auto expiry =
            item.expiresAt ? Platform::LocalizedText::mediumMoment(*item.expiresAt, words.locale()) : std::string();
        rows.push_back({
            .id = item.id,
            .path = shownText(home.abbreviate(item.path)),
            .size = shown(words.byteSize(item.sizeBytes)),
            .duration = shown(words.ignoredCandidateDurationDescription(item.duration, expiry)),
        });
    }
    m_items.show(std::move(rows));
    Q_EMIT changed();
}

} // namespace KarvelloUI
