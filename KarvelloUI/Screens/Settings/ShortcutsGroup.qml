pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Karvello.Design

// Keys, and what they do.
SettingsGroup {
    id: control

    required property var shortcuts

    // Placed by hand: rows of a layout each have columns of their own, and keep a width from before texts were wrapped.
    Column {
        id: list
        Layout.fillWidth: true
        Layout.margins: KarvelloDesign.spacing20
        Layout.topMargin: KarvelloDesign.spacing16
        Layout.bottomMargin: KarvelloDesign.spacing16
        spacing: KarvelloDesign.spacing8

        Repeater {
            model: control.shortcuts

            ShortcutRow {
                required property var modelData
                width: list.width
                shortcut: modelData
                keysWidth: Math.round(width * 0.4)
            }
        }
    }
}
