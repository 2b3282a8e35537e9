import QtQuick
import QtQuick.Layouts
import Karvello.Design

// What may be relied on.
KarvelloCard {
    id: control

    property var lines: []

    // No layout: one that is hidden while its items go keeps looking at them, and the program crashes in it (Qt 6.4).
    Column {
        Layout.fillWidth: true
        spacing: KarvelloDesign.spacing12

        Repeater {
            model: control.lines
            RowLayout {
                id: line
                required property string modelData

                width: parent ? parent.width : 0
                spacing: KarvelloDesign.spacing12

                KarvelloIcon {
                    Layout.alignment: Qt.AlignTop
                    name: "done"
                    tint: KarvelloDesign.accent
                }
                KarvelloText {
                    Layout.fillWidth: true
                    text: line.modelData
                    wrapMode: Text.Wrap
                }
            }
        }
    }
}
