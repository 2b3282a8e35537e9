import QtQuick
import QtQuick.Layouts
import Karvello.Design

// Keys, and what they do: a `SettingsShortcut`.
RowLayout {
    id: control

    required property var shortcut
    // Of the column of the keys.
    required property real keysWidth

    objectName: "shortcut"
    spacing: KarvelloDesign.spacing12

    Accessible.role: Accessible.ListItem
    Accessible.name: KarvelloDesign.spoken([shortcut.keys, shortcut.text])

    KarvelloText {
        Layout.alignment: Qt.AlignTop
        Layout.preferredWidth: control.keysWidth
        text: control.shortcut.keys
        textStyle: KarvelloDesign.small
        emphasis: KarvelloText.Medium
        color: KarvelloDesign.ink
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
    KarvelloText {
        Layout.fillWidth: true
        text: control.shortcut.text
        textStyle: KarvelloDesign.small
        color: KarvelloDesign.ink3
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
