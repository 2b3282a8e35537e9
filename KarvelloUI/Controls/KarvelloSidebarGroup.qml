import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design

// The name over a group of sections, with a chevron where the group can be folded away.
T.AbstractButton {
    id: control

    property bool isCollapsible: false
    property bool isOpen: true
    // "Expanded", "Collapsed", or why it cannot be.
    property string openText
    // The group holds the selection, and stays open.
    property bool isHeldOpen: false
    readonly property bool canToggle: isCollapsible && !isHeldOpen

    signal openRequested(bool isOpen)

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Math.max(28, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    horizontalPadding: KarvelloDesign.spacing8
    verticalPadding: KarvelloDesign.spacing4
    hoverEnabled: canToggle
    focusPolicy: canToggle || activeFocus ? Qt.StrongFocus : Qt.NoFocus

    KarvelloSpoken.focusable: isCollapsible
    KarvelloSpoken.role: isCollapsible ? Accessible.Button : Accessible.Heading
    KarvelloSpoken.expandable: isCollapsible
    KarvelloSpoken.expanded: isOpen
    Accessible.name: text
    Accessible.description: isCollapsible ? openText : ""
    Accessible.onPressAction: request()
    onClicked: request()
    Keys.onReturnPressed: request()
    Keys.onRightPressed: if (!isOpen) request()
    Keys.onLeftPressed: if (isOpen) request()

    function request() {
        if (control.canToggle)
            control.openRequested(!control.isOpen)
    }

    contentItem: RowLayout {
        spacing: KarvelloDesign.spacing8
        KarvelloText {
            Layout.fillWidth: true
            text: control.text
            textStyle: KarvelloDesign.label
            color: KarvelloDesign.ink3
            Accessible.ignored: true
        }
        KarvelloIcon {
            visible: control.isCollapsible
            name: control.isOpen ? "chevron-down" : "chevron-right"
            tint: control.canToggle ? KarvelloDesign.ink2 : KarvelloDesign.ink4
            size: 14
        }
    }
    background: Rectangle {
        radius: KarvelloDesign.controlRadius
        color: control.hovered && control.canToggle ? KarvelloDesign.elevated3 : "transparent"
        FocusRing {
            isShown: control.visualFocus
            distance: 2
            radius: KarvelloDesign.checkBoxRadius
        }
    }
}
