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
            // By their number: rows that are made anew in another language leave the layout with ones that are gone.
            model: control.shortcuts.length

            RowLayout {
                id: shortcut
                required property int index
                readonly property var modelData: control.shortcuts[index]

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
