pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Karvello.Design

// Keys, and what they do.
SettingsGroup {
    id: control

    required property var shortcuts

    ColumnLayout {
        Layout.margins: KarvelloDesign.spacing20
        Layout.topMargin: KarvelloDesign.spacing16
        Layout.bottomMargin: KarvelloDesign.spacing16
        spacing: KarvelloDesign.spacing8

        Repeater {
            model: control.shortcuts

            ShortcutRow {
                required property var modelData
                shortcut: modelData
                keysWidth: Math.round(control.width * 0.36)
            }
        }
    }
}
