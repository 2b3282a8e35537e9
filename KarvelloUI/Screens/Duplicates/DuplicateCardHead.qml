import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design

// The band on top of a card: the whole group as one check box, what of it is selected, and what its extras hold.
T.AbstractButton {
    id: head

    property string title
    property string stateText
    property string bytesText
    property string actionText
    property int checkState: Qt.Unchecked
    property bool isLocked: false
    property string disabledReason
    readonly property bool isWide: texts.implicitWidth + bytes.implicitWidth + action.implicitWidth
        + box.implicitWidth + 3 * KarvelloDesign.spacing12 <= availableWidth

    function toggleIfPossible() {
        if (head.enabled && !head.isLocked)
            head.toggleRequested()
    }

    signal toggleRequested()

    implicitHeight: Math.max(60, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    horizontalPadding: KarvelloDesign.spacing16
    verticalPadding: KarvelloDesign.spacing8
    hoverEnabled: true
    onClicked: toggleIfPossible()

    Accessible.role: Accessible.CheckBox
    Accessible.name: KarvelloDesign.spoken([title, stateText, bytesText])
    Accessible.description: isLocked ? disabledReason : ""
    Accessible.checkable: !isLocked
    Accessible.checked: checkState === Qt.Checked
    Accessible.checkStateMixed: checkState === Qt.PartiallyChecked
    Accessible.onToggleAction: toggleIfPossible()
    Accessible.onPressAction: toggleIfPossible()

    contentItem: RowLayout {
        spacing: KarvelloDesign.spacing12

        KarvelloCheckBox {
            id: box
            Layout.leftMargin: -padding
            Layout.rightMargin: -padding
            isLocked: head.isLocked
            disabledReason: head.disabledReason
            checkState: head.checkState
            focusPolicy: Qt.NoFocus
            isAsking: true
            onClicked: head.toggleIfPossible()
            Accessible.ignored: true
        }
        ColumnLayout {
            id: texts
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
                Accessible.ignored: true
            }
            KarvelloText {
                Layout.fillWidth: true
                visible: !head.isWide
                text: head.bytesText
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
        KarvelloText {
            id: bytes
            visible: head.isWide
            text: head.bytesText
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            Accessible.ignored: true
        }
        KarvelloButton {
            id: action
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
        FocusRing {
            isShown: head.visualFocus
            distance: 2
            radius: KarvelloDesign.checkBoxRadius
        }
    }
}
