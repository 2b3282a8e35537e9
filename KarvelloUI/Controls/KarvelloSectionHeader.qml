import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design

// The band over a section of a list: a box for all its visible rows, name, count, note and sum.
T.Control {
    id: control

    required property string name
    property string count
    property string note
    property string total
    property int checkState: Qt.Unchecked
    property bool isSelectable: true
    property bool isOpen: true
    // What is said of the selection.
    property string accessibleValue
    readonly property int spokenRole: Accessible.Heading

    signal toggleRequested()
    signal openRequested(bool isOpen)

    implicitWidth: 640
    implicitHeight: Math.max(40, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    leftPadding: KarvelloDesign.spacing16
    rightPadding: KarvelloDesign.spacing16 + 28 + KarvelloDesign.spacing12
    verticalPadding: KarvelloDesign.spacing4

    Accessible.role: spokenRole
    // A control of Qt takes its own role once an assistant is there, whatever was bound.
    Accessible.onRoleChanged: if (Accessible.role !== spokenRole) Accessible.role = spokenRole
    onSpokenRoleChanged: Accessible.role = spokenRole
    Accessible.name: KarvelloDesign.spoken([name, count, total])
    Accessible.description: accessibleValue

    contentItem: RowLayout {
        spacing: KarvelloDesign.spacing12

        KarvelloCheckBox {
            Layout.leftMargin: -padding
            Layout.rightMargin: -padding
            isLocked: !control.isSelectable
            checkState: control.checkState
            accessibleName: control.name
            isAsking: true
            onClicked: control.toggleRequested()
        }
        KarvelloButton {
            Layout.rightMargin: -KarvelloDesign.spacing8
            Layout.leftMargin: -KarvelloDesign.spacing4
            kind: KarvelloButton.Quiet
            size: KarvelloButton.Small
            iconName: control.isOpen ? "chevron-down" : "chevron-right"
            accessibleName: control.name
            Accessible.checkable: true
            Accessible.checked: control.isOpen
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

    background: Rectangle {
        color: KarvelloDesign.elevated2
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
}
