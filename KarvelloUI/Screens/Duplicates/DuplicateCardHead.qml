import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design

// The band on top of a card: the whole group as one check box, what of it is selected, and what its extras hold.
T.CheckDelegate {
    id: head

    property string title
    property string stateText
    property string bytesText
    property string actionText
    property int groupState: Qt.Unchecked
    property bool isLocked: false
    property string disabledReason
    readonly property bool isLargeText: KarvelloDesign.textFactor >= 1.25

    function toggleIfPossible() {
        if (head.enabled && !head.isLocked)
            head.toggleRequested()
    }

    signal toggleRequested()

    implicitHeight: Math.max(60, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    horizontalPadding: KarvelloDesign.spacing16
    verticalPadding: KarvelloDesign.spacing8
    hoverEnabled: true
    // The state is the owner's.
    checkable: false
    onClicked: toggleIfPossible()

    Accessible.name: KarvelloDesign.spoken([title, stateText, bytesText])
    Accessible.description: isLocked ? disabledReason : ""
    KarvelloSpoken.focusable: true
    KarvelloSpoken.role: Accessible.CheckBox
    KarvelloSpoken.checkable: !isLocked
    KarvelloSpoken.checked: groupState === Qt.Checked
    Accessible.checkStateMixed: groupState === Qt.PartiallyChecked
    Accessible.onToggleAction: toggleIfPossible()
    Accessible.onPressAction: toggleIfPossible()

    contentItem: RowLayout {
        spacing: KarvelloDesign.spacing12

        KarvelloCheckBox {
            Layout.leftMargin: -padding
            Layout.rightMargin: -padding
            isLocked: head.isLocked
            disabledReason: head.disabledReason
            checkState: head.groupState
            focusPolicy: Qt.NoFocus
            isAsking: true
            onClicked: head.toggleIfPossible()
            Accessible.ignored: true
        }
        ColumnLayout {
            spacing: 0

            KarvelloText {
                Layout.fillWidth: true
                text: head.title
                textStyle: KarvelloDesign.heading
                color: KarvelloDesign.ink
                Accessible.ignored: true
            }
            KarvelloText {
                Layout.fillWidth: true
                text: head.stateText
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            KarvelloText {
                Layout.fillWidth: true
                visible: head.isLargeText
                text: head.bytesText
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
        KarvelloText {
            Layout.fillWidth: true
            Layout.maximumWidth: Math.ceil(implicitWidth)
            visible: !head.isLargeText
            text: head.bytesText
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignRight
            Accessible.ignored: true
        }
        KarvelloButton {
            visible: !head.isLocked
            size: KarvelloButton.Small
            // Space on the head does the same.
            focusPolicy: Qt.NoFocus
            text: head.actionText
            onClicked: head.toggleIfPossible()
        }
    }
    background: Rectangle {
        radius: KarvelloDesign.cardRadius - 1
        color: head.hovered && !head.isLocked ? KarvelloDesign.elevated2 : "transparent"
        // Round at the top alone.
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: parent.height / 2
            color: parent.color
        }
        FocusRing {
            isShown: head.visualFocus
            distance: 2
            radius: KarvelloDesign.checkBoxRadius
        }
    }
}
