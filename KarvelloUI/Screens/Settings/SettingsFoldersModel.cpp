#include "KarvelloUI/Screens/Settings/SettingsFoldersModel.h"

#include "KarvelloUI/Advisors/StoragePermissionAdvisor.h"
#include "KarvelloUI/Sessions/ShownText.h"
#include "Platform/Base/HomePathAbbreviation.h"
#include "Platform/Base/LocalizedText.h"

#include <QPointer>
#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace KarvelloUI {

SettingsFoldersModel::SettingsFoldersModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : SettingsListGroupModel(dashboard, dashboard.customFolders(), parent)
{
    connect(&dashboard.customFolders(), &CustomScanFolderStore::foldersChanged, this, &SettingsFoldersModel::refresh);
    connect(&dashboard.cleaner(), &CleanerViewModel::reportChanged, this, &SettingsFoldersModel::refresh);
    refresh();
}

QString SettingsFoldersModel::title() const
{
    return shown(dashboard().words().text("사용자 지정 폴더", "Custom Folders"));
}

QString SettingsFoldersModel::text() const
{
    return shown(dashboard().words().text("사용자 지정 폴더의 항목은 자동으로 선택되지 않으며 수동 검토로 표시됩니다. "
                                          "홈, 시스템 폴더, 볼륨의 최상위처럼 범위가 넓거나 보호된 위치는 추가할 수 "
                                          "없습니다.",
        "Custom-folder items are never auto-selected and are marked Manual Review. Broad or protected roots such as "
        "Home, system folders, and volume roots are rejected."));
}

QString SettingsFoldersModel::emptyText() const
{
    return shown(dashboard().words().text("추가한 사용자 지정 폴더가 없습니다.", "No custom folders added."));
}

QString SettingsFoldersModel::addText() const
{
    return shown(dashboard().words().text("폴더 추가", "Add Folder"));
}

QString SettingsFoldersModel::removeText() const
{
    return shown(dashboard().words().text("폴더 제거", "Remove Folder"));
}

QString SettingsFoldersModel::revealText() const
{
    return shown(dashboard().words().say("Show in File Manager"));
}

void SettingsFoldersModel::add()
{
    const auto words = dashboard().words();
    dashboard().services().fileDialogs.chooseFolder(
        {
            .message =
                words.say("Add user-selected folders to the cleanup scan. Karvello remembers that it may read them."),
            .prompt = words.text("폴더 추가", "Add Folder"),
            .directory = dashboard().services().homeDirectory,
        },
        // The answer comes while the dialogs live, and they outlive the dashboard.
        [dashboard = QPointer(&this->dashboard())](const std::optional<Platform::FileURL>& picked) {
            if (dashboard && picked) {
                const auto& session = dashboard->services().session;
                dashboard->customFolders().addFolder(*picked, session.fileManager, session.now());
            }
        });
}

void SettingsFoldersModel::remove(int place)
{
    if (const auto* const folder = m_folders.row(place)) {
        dashboard().customFolders().removeFolder(folder->id);
    }
}

void SettingsFoldersModel::reveal(int place)
{
    if (const auto* const folder = m_folders.row(place)) {
        dashboard().revealInFinder(Platform::FileURL(folder->rawPath));
    }
}

QString SettingsFoldersModel::problemOf(const CustomScanFolder& folder) const
{
    const auto& skipped = dashboard().cleaner().report().skippedItems;
    const auto url = Platform::FileURL(folder.fallbackPath);
    const auto found = std::ranges::find_if(
        skipped, [&url](const CleanerCore::SkippedItem& item) { return item.url.path() == url.path(); });
    if (found == skipped.end()) {
        return {};
    }
    const auto kind = StoragePermissionAdvisor::issueKind(found->reason);
    return shown(dashboard().words().permissionDiagnosticAction(
        kind.value_or(StoragePermissionIssueKind::securityScopedAccess)));
}

void SettingsFoldersModel::refresh()
{
    const auto words = dashboard().words();
    const Platform::HomePathAbbreviation home(dashboard().services().homeDirectory);
    std::vector<CustomFolderRow> rows;
    for (const auto& folder : dashboard().customFolders().folders()) {
        rows.push_back({
            .id = folder.id,
            .rawPath = folder.fallbackPath,
            .path = shownText(home.abbreviate(folder.fallbackPath)),
            .added =
                shown(words.say("Added {}", Platform::LocalizedText::mediumMoment(folder.createdAt, words.locale()))),
            .problem = problemOf(folder),
        });
    }
    m_folders.show(std::move(rows));
    Q_EMIT changed();
}

} // namespace KarvelloUI
