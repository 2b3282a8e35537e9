import QtQuick
import QtQuick.Layouts
import Karvello.Design

// One setting: name, a line about it, and its control at the right, or below when both do not fit side by side.
Item {
    id: control

    default property alias content: slot.data
    property string name
    property string text
    // A rule below it, unless it is the last of its card.
    property bool isLast: false
    property int padding: KarvelloDesign.spacing20
    // The most that its control can take, for one that can do with less.
    readonly property real slotMaximumWidth: Math.max(0, width - 2 * padding)
    readonly property real leastTextWidth: Math.max(label.implicitWidth,
        Math.min(line.implicitWidth, Math.round(150 * KarvelloDesign.textFactor)))
    readonly property bool isWrapped:
        leastTextWidth + KarvelloDesign.spacing16 + slot.implicitWidth > width - 2 * padding

    implicitWidth: 440
    implicitHeight: Math.max(60, Math.ceil(grid.implicitHeight) + 2 * KarvelloDesign.spacing12)

    Accessible.role: Accessible.Grouping
    Accessible.name: name
    Accessible.description: text

    GridLayout {
        id: grid
        x: control.padding
        width: parent.width - 2 * control.padding
        anchors.verticalCenter: parent.verticalCenter
        columns: control.isWrapped ? 1 : 2
        columnSpacing: KarvelloDesign.spacing16
        rowSpacing: KarvelloDesign.spacing8

        ColumnLayout {
            spacing: 0
            KarvelloText {
                id: label
                Layout.fillWidth: true
                text: control.name
                emphasis: KarvelloText.Medium
                color: KarvelloDesign.ink
            }
            KarvelloText {
                id: line
                Layout.fillWidth: true
                visible: text !== ""
                text: control.text
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                wrapMode: Text.Wrap
            }
        }
        RowLayout {
            id: slot
            Layout.fillWidth: false
            Layout.maximumWidth: grid.width
            spacing: KarvelloDesign.spacing8
        }
    }
    Rectangle {
        anchors.bottom: parent.bottom
        visible: !control.isLast
        width: parent.width
        height: 1
        color: KarvelloDesign.lineSoft
    }
}
