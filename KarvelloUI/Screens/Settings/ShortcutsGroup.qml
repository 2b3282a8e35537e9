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

            Item {
                id: shortcut
                required property var modelData

                objectName: "shortcut"
                width: list.width
                height: Math.max(keys.height, text.height)

                Accessible.role: Accessible.ListItem
                Accessible.name: KarvelloDesign.spoken([modelData.keys, modelData.text])

                KarvelloText {
                    id: keys
                    width: Math.round(shortcut.width * 0.4)
                    text: shortcut.modelData.keys
                    textStyle: KarvelloDesign.small
                    emphasis: KarvelloText.Medium
                    color: KarvelloDesign.ink
                    wrapMode: Text.Wrap
                    Accessible.ignored: true
                }
                KarvelloText {
                    id: text
                    x: keys.width + KarvelloDesign.spacing12
                    width: shortcut.width - x
                    text: shortcut.modelData.text
                    textStyle: KarvelloDesign.small
                    color: KarvelloDesign.ink3
                    wrapMode: Text.Wrap
                    Accessible.ignored: true
                }
            }
        }
    }
}
