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

    GridLayout {
        objectName: "columns"
        Layout.fillWidth: true
        columns: KarvelloDesign.textFactor >= 1.25 || control.contentWidth < 800 ? 1 : 2
        columnSpacing: KarvelloDesign.spacing24
        rowSpacing: KarvelloDesign.spacing24

        SettingsColumn {
            AppearanceGroup {
                Layout.fillWidth: true
                group: control.screen.appearance
            }
            ScanGroup {
                Layout.fillWidth: true
                group: control.screen.scan
                closeName: control.screen.closeText
            }
            IgnoreGroup {
                Layout.fillWidth: true
                group: control.screen.ignoreList
                closeName: control.screen.closeText
            }
            AboutGroup {
                Layout.fillWidth: true
                screen: control.screen
            }
        }
        SettingsColumn {
            FoldersGroup {
                Layout.fillWidth: true
                group: control.screen.customFolders
                closeName: control.screen.closeText
            }
            AccessGuidanceGroup {
                Layout.fillWidth: true
                group: control.screen.accessGuidance
            }
            ShortcutsGroup {
                Layout.fillWidth: true
                title: control.screen.shortcutsTitle
                shortcuts: control.screen.shortcuts
            }
        }
    }
    Item { Layout.fillHeight: true }

    component SettingsColumn: ColumnLayout {
        Layout.alignment: Qt.AlignTop
        Layout.fillWidth: true
        // Both are as wide, whatever they hold.
        Layout.preferredWidth: 1
        spacing: KarvelloDesign.spacing24
    }
}
