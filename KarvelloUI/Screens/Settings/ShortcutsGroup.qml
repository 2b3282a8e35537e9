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

            RowLayout {
                id: shortcut
                required property var modelData

                objectName: "shortcut"
                spacing: KarvelloDesign.spacing12

                Accessible.role: Accessible.ListItem
                Accessible.name: KarvelloDesign.spoken([modelData.keys, modelData.text])

                KarvelloText {
                    Layout.alignment: Qt.AlignTop
                    Layout.preferredWidth: Math.round(control.width * 0.36)
                    text: shortcut.modelData.keys
                    textStyle: KarvelloDesign.small
                    emphasis: KarvelloText.Medium
                    color: KarvelloDesign.ink
                    wrapMode: Text.Wrap
                    Accessible.ignored: true
                }
                KarvelloText {
                    Layout.fillWidth: true
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
