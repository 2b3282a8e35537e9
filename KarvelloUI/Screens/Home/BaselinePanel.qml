import QtQuick
import QtQuick.Layouts
import Karvello.Design

// What may be relied on.
KarvelloCard {
    id: control

    property var lines: []

    Repeater {
        // By their number: rows that are made anew in another language leave the layout with ones that are gone.
        model: control.lines.length
        RowLayout {
            id: line
            required property int index

            spacing: KarvelloDesign.spacing12

            KarvelloIcon {
                Layout.alignment: Qt.AlignTop
                name: "done"
                tint: KarvelloDesign.accent
            }
            KarvelloText {
                Layout.fillWidth: true
                text: control.lines[line.index] ?? ""
                wrapMode: Text.Wrap
            }
        }
    }
}
