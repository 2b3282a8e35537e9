pragma ComponentBehavior: Bound
import QtQuick
import Karvello.Design

// What the colours of a treemap stand for: a list of { tint, text }.
Row {
    id: control

    property var entries: []
    property string accessibleName

    spacing: KarvelloDesign.spacing16
    Accessible.role: Accessible.Grouping
    Accessible.name: accessibleName

    Repeater {
        model: control.entries
        Row {
            id: entry
            required property var modelData
            spacing: KarvelloDesign.spacing4

            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: 10
                height: 10
                radius: KarvelloDesign.swatchRadius
                color: entry.modelData.tint
            }
            KarvelloText {
                text: entry.modelData.text
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
            }
        }
    }
}
