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
        // By their number: the list is a new one with each language.
        model: control.settings.shortcuts.length

        ShortcutRow {
            required property int index
            Layout.fillWidth: true
            shortcut: control.settings.shortcuts[index]
            keysWidth: Math.round(control.availableWidth * 0.36)
        }
    }
}
