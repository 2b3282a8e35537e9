import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design

// One item of a list: box, tile, name over path, reason, pill, age and size. A press on the box or on a blank place toggles,
// one on the texts or on the chevron opens the details. It holds no state: whoever owns the selection sets `isChecked`.
T.CheckDelegate {
    id: control

    required property string name
    property string path
    property string reason
    // The application that has it in use, as a sentence.
    property string warning
    property string age
    property string size
    property string iconName: "folder"
    property string pillText
    property int pillKind: KarvelloDesign.NeutralPill
    property bool isChecked: false
    property bool isSelectable: true
    property bool isOpen: false
    property string accessibleName: KarvelloDesign.spoken([name, pillText, size, path, warning, reason, age])
    // What the menu button is called.
    required property string menuName

    signal toggleRequested()
    signal openRequested(bool isOpen)
    signal menuRequested()

    function toggleIfSelectable() {
        if (control.enabled && control.isSelectable)
            control.toggleRequested()
    }

    // Its kind is what makes it a check box for assistants; the state is the owner's.
    checkable: false
    implicitWidth: 640
    implicitHeight: Math.max(54, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    horizontalPadding: KarvelloDesign.spacing16
    verticalPadding: KarvelloDesign.spacing8
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    onClicked: toggleIfSelectable()

    Accessible.name: accessibleName
    Accessible.checkable: isSelectable
    Accessible.checked: isSelectable && isChecked
    Accessible.onToggleAction: toggleIfSelectable()
    Accessible.onPressAction: toggleIfSelectable()

    Keys.onPressed: event => {
        event.accepted = true
        if (event.key === Qt.Key_Right && !control.isOpen)
            control.openRequested(true)
        else if (event.key === Qt.Key_Left && control.isOpen)
            control.openRequested(false)
        else if (event.key === Qt.Key_Menu || event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier)
            control.menuRequested()
        else
            event.accepted = false
    }
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        onClicked: control.menuRequested()
    }

    contentItem: RowLayout {
        spacing: KarvelloDesign.spacing12

        KarvelloCheckBox {
            Layout.leftMargin: -padding
            Layout.rightMargin: -padding
            isLocked: !control.isSelectable
            checkState: control.isChecked ? Qt.Checked : Qt.Unchecked
            focusPolicy: Qt.NoFocus
            isAsking: true
            onClicked: control.toggleIfSelectable()
            Accessible.ignored: true
        }
        IconTile {
            name: control.iconName
            opacity: control.isSelectable ? 1 : 0.5
        }
        ColumnLayout {
            Layout.preferredWidth: control.availableWidth * 0.3
            Layout.fillWidth: control.reason === "" && control.warning === ""
            spacing: 0

            KarvelloText {
                Layout.fillWidth: true
                text: control.name
                emphasis: KarvelloText.Medium
                color: KarvelloDesign.ink
                Accessible.ignored: true
            }
            KarvelloText {
                Layout.fillWidth: true
                visible: text !== ""
                text: control.path
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                elide: Text.ElideMiddle
                Accessible.ignored: true
            }
            TapHandler { onTapped: control.openRequested(!control.isOpen) }
        }
        ColumnLayout {
            Layout.fillWidth: true
            Layout.preferredWidth: 0
            visible: control.reason !== "" || control.warning !== ""
            spacing: 0

            RowLayout {
                visible: control.warning !== ""
                spacing: KarvelloDesign.spacing4
                Rectangle {
                    implicitWidth: 6
                    implicitHeight: 6
                    radius: 3
                    color: KarvelloDesign.caution
                }
                KarvelloText {
                    Layout.fillWidth: true
                    text: control.warning
                    textStyle: KarvelloDesign.small
                    emphasis: KarvelloText.Medium
                    color: KarvelloDesign.caution
                    Accessible.ignored: true
                }
            }
            KarvelloText {
                Layout.fillWidth: true
                visible: text !== ""
                text: control.reason
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                wrapMode: Text.Wrap
                maximumLineCount: control.warning === "" ? 2 : 1
                Accessible.ignored: true
            }
            TapHandler { onTapped: control.openRequested(!control.isOpen) }
        }
        KarvelloPill {
            Layout.rightMargin: Math.max(0, 104 - implicitWidth)
            visible: text !== ""
            kind: control.pillKind
            text: control.pillText
            Accessible.ignored: true
        }
        KarvelloText {
            Layout.preferredWidth: Math.round(60 * KarvelloDesign.textFactor)
            visible: control.age !== ""
            text: control.age
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            horizontalAlignment: Text.AlignRight
            Accessible.ignored: true
        }
        KarvelloText {
            Layout.preferredWidth: Math.round(72 * KarvelloDesign.textFactor)
            text: control.size
            emphasis: KarvelloText.Medium
            color: KarvelloDesign.ink
            horizontalAlignment: Text.AlignRight
            Accessible.ignored: true
        }
        KarvelloButton {
            kind: KarvelloButton.Quiet
            size: KarvelloButton.Small
            focusPolicy: Qt.NoFocus
            iconName: control.hovered ? "more" : control.isOpen ? "chevron-down" : "chevron-right"
            accessibleName: control.menuName
            onClicked: control.hovered ? control.menuRequested() : control.openRequested(!control.isOpen)
        }
    }

    background: Rectangle {
        color: control.hovered ? KarvelloDesign.elevated2 : "transparent"
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: KarvelloDesign.lineSoft
        }
        FocusRing {
            isShown: control.visualFocus
            distance: 2
            radius: KarvelloDesign.checkBoxRadius
        }
    }
}
