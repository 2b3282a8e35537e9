import QtQuick
import Karvello.Design

// Keys, and what they do: a `SettingsShortcut`. Placed by hand: rows of a layout each have columns of their own, and keep
// a width from before texts were wrapped.
Item {
    id: control

    required property var shortcut
    // Of the column of the keys.
    required property real keysWidth

    objectName: "shortcut"
    implicitHeight: Math.max(keys.height, text.height)

    Accessible.role: Accessible.ListItem
    Accessible.name: KarvelloDesign.spoken([shortcut.keys, shortcut.text])

    KarvelloText {
        id: keys
        width: control.keysWidth
        text: control.shortcut.keys
        textStyle: KarvelloDesign.small
        emphasis: KarvelloText.Medium
        color: KarvelloDesign.ink
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
    KarvelloText {
        id: text
        x: keys.width + KarvelloDesign.spacing12
        width: control.width - x
        text: control.shortcut.text
        textStyle: KarvelloDesign.small
        color: KarvelloDesign.ink3
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
