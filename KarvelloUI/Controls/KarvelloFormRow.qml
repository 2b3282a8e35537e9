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
    readonly property real widthBeside: slotMaximumWidth - KarvelloDesign.spacing16 - slot.implicitWidth
    // A text of more than three lines beside a button is a narrow column that nobody likes to read.
    readonly property bool isWrapped: leastTextWidth > widthBeside || line.implicitWidth > 3 * widthBeside
    readonly property real contentHeight: isWrapped ? texts.height + KarvelloDesign.spacing8 + slot.height
        : Math.max(texts.height, slot.height)
    readonly property real contentTop: Math.round((height - contentHeight) / 2)

    implicitWidth: 440
    implicitHeight: Math.max(60, Math.ceil(contentHeight) + 2 * KarvelloDesign.spacing12)

    Accessible.role: Accessible.Grouping
    Accessible.name: name
    Accessible.description: text

    // Placed by hand: layouts within layouts give up before texts that wrap have found their heights.
    Column {
        id: texts
        x: control.padding
        y: control.isWrapped ? control.contentTop : Math.round((control.height - height) / 2)
        width: control.isWrapped ? control.slotMaximumWidth
            : Math.max(0, control.slotMaximumWidth - KarvelloDesign.spacing16 - slot.width)

        KarvelloText {
            id: label
            width: parent.width
            text: control.name
            emphasis: KarvelloText.Medium
            color: KarvelloDesign.ink
        }
        KarvelloText {
            id: line
            width: parent.width
            visible: text !== ""
            text: control.text
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            wrapMode: Text.Wrap
        }
    }
    RowLayout {
        id: slot
        x: control.isWrapped ? control.padding : control.width - control.padding - width
        y: control.isWrapped ? control.contentTop + texts.height + KarvelloDesign.spacing8
            : Math.round((control.height - height) / 2)
        width: Math.min(implicitWidth, control.slotMaximumWidth)
        spacing: KarvelloDesign.spacing8
    }
    Rectangle {
        anchors.bottom: parent.bottom
        visible: !control.isLast
        width: parent.width
        height: 1
        color: KarvelloDesign.lineSoft
    }
}
