#include "KarvelloUI/Screens/Settings/SettingsScreenModel.h"

namespace KarvelloUI {

SettingsScreenModel::SettingsScreenModel(MacCleanerDashboardModel& dashboard, QObject* parent)
    : QObject(parent)
    , m_dashboard(dashboard)
    , m_appearance(dashboard)
    , m_scan(dashboard)
    , m_ignoreList(dashboard)
    , m_customFolders(dashboard)
    , m_accessGuidance(dashboard)
{
    connect(&dashboard.preferences(), &DashboardPreferences::languageChanged, this, &SettingsScreenModel::wordsChanged);
    connect(&m_scan, &SettingsScanModel::changed, this, &SettingsScreenModel::failingGroupChanged);
    connect(&m_ignoreList, &SettingsIgnoreModel::changed, this, &SettingsScreenModel::failingGroupChanged);
    connect(&m_customFolders, &SettingsFoldersModel::changed, this, &SettingsScreenModel::failingGroupChanged);
}

QString SettingsScreenModel::title() const
{
    return shown(m_dashboard.words().macDashboardSectionTitle(MacDashboardSection::settings));
}

QString SettingsScreenModel::subtitle() const
{
    return shown(m_dashboard.words().text("언어, 스캔 강도, 안전 정책", "Language, scan intensity, and safety policy"));
}

QString SettingsScreenModel::shortcutsTitle() const
{
    return shown(m_dashboard.words().say("Keyboard Shortcuts"));
}

QVariantList SettingsScreenModel::shortcuts() const
{
    const auto words = m_dashboard.words();
    const auto shortcut = [&words](DashboardWords::Own<> keys, DashboardWords::Own<> text) {
        return QVariant::fromValue(SettingsShortcut{.keys = shown(words.say(keys)), .text = shown(words.say(text))});
    };
    return {
        shortcut("Ctrl+1 … 9", "Open one of the first nine sections"),
        shortcut("Ctrl+R", "Scan, or scan again"),
        shortcut("Ctrl+F", "Go to the filter field"),
        shortcut("Tab, Shift+Tab", "Move between the parts of the window"),
        shortcut("Arrows, Home, End, Page", "Move within a list, a picker or the storage map"),
        shortcut("Space", "Select the row, or deselect it"),
        shortcut("Right, Left", "Open and close details or a section"),
        shortcut("Ctrl+A, Ctrl+Shift+A", "Select all; clear the selection"),
        shortcut("Menu, Shift+F10", "Open the menu of the row"),
        shortcut("Ctrl+Return", "Ask to confirm the move to Trash"),
        shortcut("Escape", "Close a menu or dialog; clear the filter; reach Cancel during a scan"),
        shortcut("F1", "Show these shortcuts"),
    };
}

QString SettingsScreenModel::aboutTitle() const
{
    return shown(m_dashboard.words().say("About"));
}

QString SettingsScreenModel::applicationName() const
{
    return shown(m_dashboard.words().appTitle());
}

QString SettingsScreenModel::applicationText() const
{
    return shown(m_dashboard.words().appSubtitle());
}

QString SettingsScreenModel::versionText() const
{
    return shown(m_dashboard.words().say("Version {}", std::string(KARVELLO_VERSION)));
}

QString SettingsScreenModel::iosGuideTitle() const
{
    return shown(m_dashboard.words().iOSStorageChecklistTitle());
}

QString SettingsScreenModel::iosGuideText() const
{
    return shown(m_dashboard.words().text(
        "iOS 샌드박스 때문에 다른 앱의 캐시나 시스템 데이터를 직접 삭제할 수 없습니다. "
        "대신 Apple이 지원하는 경로를 따르세요.",
        "iOS sandboxing prevents direct deletion of other apps' caches or System Data. Follow Apple's supported paths "
        "instead."));
}

QString SettingsScreenModel::iosGuideButton() const
{
    return shown(m_dashboard.words().macDashboardSectionTitle(MacDashboardSection::iosGuide));
}

QString SettingsScreenModel::closeText() const
{
    return shown(m_dashboard.words().say("Close"));
}

SettingsScreenModel::FailingGroup SettingsScreenModel::failingGroup() const
{
    // Without access nothing is scanned; with a list that was not stored, what was hidden may come back; a folder is only
    // not looked at.
    return !m_scan.errorText().isEmpty()         ? ScanGroup
        : !m_ignoreList.errorText().isEmpty()    ? IgnoreListGroup
        : !m_customFolders.errorText().isEmpty() ? CustomFoldersGroup
                                                 : NoGroup;
}

void SettingsScreenModel::openIOSGuide()
{
    m_dashboard.openIOSGuide();
}

} // namespace KarvelloUI
