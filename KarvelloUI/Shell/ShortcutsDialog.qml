// Parts of this file know the ids around them. The pragma that would say so breaks loaders and inline parts in Qt 6.4.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Settings

// The keys of all sections, for somebody who has just reached for one.
KarvelloDialog {
    id: control

    required property SettingsScreenModel settings

    title: settings.shortcutsTitle
    iconName: "list"
    acceptText: ""
    cancelText: settings.closeText

    Repeater {
        model: control.settings.shortcuts

        ShortcutRow {
            required property var modelData
            Layout.fillWidth: true
            shortcut: modelData
            keysWidth: Math.round(control.availableWidth * 0.36)
        }
    }
}
