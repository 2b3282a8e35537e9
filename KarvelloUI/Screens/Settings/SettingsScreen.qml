// Parts of this file know the ids around them. The pragma that would say so breaks loaders and inline parts in Qt 6.4.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Settings

// Groups in two columns, or in one where the texts need the width.
KarvelloPage {
    id: control

    required property SettingsScreenModel screen

    title: screen.title
    subtitle: screen.subtitle

    // Placed by hand: layouts within layouts give up before texts that wrap have found their heights.
    Item {
        id: page

        readonly property int columns: KarvelloDesign.textFactor >= 1.25 || control.contentWidth < 800 ? 1 : 2
        readonly property real columnWidth: columns === 1 ? width : Math.floor((width - KarvelloDesign.spacing24) / 2)

        objectName: "columns"
        Layout.fillWidth: true
        implicitHeight: columns === 1 ? left.height + KarvelloDesign.spacing24 + right.height
            : Math.max(left.height, right.height)

        SettingsColumn {
            id: left
            AppearanceGroup {
                width: parent.width
                group: control.screen.appearance
            }
            ScanGroup {
                width: parent.width
                group: control.screen.scan
                closeName: control.screen.closeText
                showsFailure: control.screen.failingGroup === SettingsScreenModel.ScanGroup
            }
            IgnoreGroup {
                width: parent.width
                group: control.screen.ignoreList
                closeName: control.screen.closeText
                showsFailure: control.screen.failingGroup === SettingsScreenModel.IgnoreListGroup
            }
            AboutGroup {
                width: parent.width
                screen: control.screen
            }
        }
        SettingsColumn {
            id: right
            x: page.columns === 1 ? 0 : page.columnWidth + KarvelloDesign.spacing24
            y: page.columns === 1 ? left.height + KarvelloDesign.spacing24 : 0
            FoldersGroup {
                width: parent.width
                group: control.screen.customFolders
                closeName: control.screen.closeText
                showsFailure: control.screen.failingGroup === SettingsScreenModel.CustomFoldersGroup
            }
            AccessGuidanceGroup {
                width: parent.width
                group: control.screen.accessGuidance
            }
            ShortcutsGroup {
                width: parent.width
                title: control.screen.shortcutsTitle
                shortcuts: control.screen.shortcuts
            }
        }
    }
    Item { Layout.fillHeight: true }

    component SettingsColumn: Column {
        width: page.columnWidth
        spacing: KarvelloDesign.spacing24
    }
}
