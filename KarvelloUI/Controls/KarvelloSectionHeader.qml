import QtQuick
import QtQuick.Layouts
import Karvello.Design

// The band over a section of a list: a box for all its visible rows, name, count, note and sum.
Rectangle {
    id: control

    required property string name
    property string count
    property string note
    property string total
    property int checkState: Qt.Unchecked
    property bool isSelectable: true
    property bool isOpen: true
    // "Expanded", "Collapsed": Qt 6.4 has no such state for assistants.
    property string openText
    // In a list the row is the stop for Tab, and not what is in it.
    property bool takesFocus: true
    // What is said of the selection.
    property string accessibleValue

    signal toggleRequested()
    signal openRequested(bool isOpen)

    implicitWidth: 640
    implicitHeight: Math.max(40, Math.ceil(row.implicitHeight) + 2 * KarvelloDesign.spacing4)
    color: KarvelloDesign.elevated2

    Accessible.role: Accessible.Heading
    Accessible.name: KarvelloDesign.spoken([name, count, total])
    Accessible.description: KarvelloDesign.spoken([accessibleValue, openText])

    RowLayout {
        id: row
        anchors.fill: parent
        anchors.leftMargin: KarvelloDesign.spacing16
        // The sums stand over the sizes of the rows, beside whose menu there is nothing here.
        anchors.rightMargin: KarvelloDesign.spacing16 + 28 + KarvelloDesign.spacing12
        spacing: KarvelloDesign.spacing12

        KarvelloCheckBox {
            Layout.leftMargin: -padding
            Layout.rightMargin: -padding
            isLocked: !control.isSelectable
            checkState: control.checkState
            accessibleName: control.name
            focusPolicy: control.takesFocus ? Qt.StrongFocus : Qt.NoFocus
            isAsking: true
            onClicked: control.toggleRequested()
            // There the row is the check box.
            Accessible.ignored: !control.takesFocus
        }
        KarvelloButton {
            Layout.rightMargin: -KarvelloDesign.spacing8
            Layout.leftMargin: -KarvelloDesign.spacing4
            kind: KarvelloButton.Quiet
            size: KarvelloButton.Small
            iconName: control.isOpen ? "chevron-down" : "chevron-right"
            accessibleName: KarvelloDesign.spoken([control.name, control.openText])
            focusPolicy: control.takesFocus ? Qt.StrongFocus : Qt.NoFocus
            onClicked: control.openRequested(!control.isOpen)
        }
        KarvelloText {
            text: control.name
            emphasis: KarvelloText.Strong
            color: KarvelloDesign.ink
            Accessible.ignored: true
        }
        KarvelloText {
            Layout.fillWidth: true
            text: control.count
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            Accessible.ignored: true
        }
        KarvelloText {
            text: control.note
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
        }
        KarvelloText {
            Layout.preferredWidth: Math.round(72 * KarvelloDesign.textFactor)
            text: control.total
            emphasis: KarvelloText.Strong
            color: KarvelloDesign.ink
            horizontalAlignment: Text.AlignRight
            Accessible.ignored: true
        }
    }

    Rectangle {
        width: parent.width
        height: 1
        color: KarvelloDesign.line
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: KarvelloDesign.lineSoft
    }
}
