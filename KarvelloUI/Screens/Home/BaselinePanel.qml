import QtQuick
import QtQuick.Layouts
import Karvello.Design

// What may be relied on.
KarvelloCard {
    id: control

    property var lines: []

    Repeater {
        model: control.lines
        RowLayout {
            id: line
            required property string modelData

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
