import QtQuick
import QtQuick.Templates as T
import Karvello.Design

// One line of text, with a button that clears it. Escape clears it as well, and is left to others once there is nothing.
T.TextField {
    id: control

    property string iconName
    // What the clear button is called.
    required property string clearName
    property string accessibleName: placeholderText

    implicitWidth: 240
    implicitHeight: Math.max(Math.round(34 * KarvelloDesign.textFactor), contentHeight + 2 * KarvelloDesign.spacing8)
    leftPadding: iconName === "" ? KarvelloDesign.spacing12 : KarvelloDesign.spacing12 + icon.width + KarvelloDesign.spacing8
    rightPadding: clearButton.visible ? clearButton.width + KarvelloDesign.spacing4 : KarvelloDesign.spacing12
    verticalAlignment: TextInput.AlignVCenter
    font: KarvelloDesign.body.font
    color: enabled ? KarvelloDesign.ink : KarvelloDesign.ink4
    placeholderTextColor: KarvelloDesign.ink4
    selectionColor: KarvelloDesign.accent
    selectedTextColor: KarvelloDesign.accentForeground
    selectByMouse: true
    hoverEnabled: true

    KarvelloSpoken.role: Accessible.EditableText
    Accessible.name: accessibleName

    Keys.onEscapePressed: event => {
        event.accepted = control.text !== ""
        control.clear()
    }

    KarvelloIcon {
        id: icon
        x: KarvelloDesign.spacing12
        anchors.verticalCenter: parent.verticalCenter
        name: control.iconName
        visible: name !== ""
    }
    KarvelloText {
        x: control.leftPadding
        width: control.width - control.leftPadding - control.rightPadding
        anchors.verticalCenter: parent.verticalCenter
        visible: control.length === 0 && control.preeditText === ""
        text: control.placeholderText
        color: KarvelloDesign.ink4
        Accessible.ignored: true
    }
    KarvelloButton {
        id: clearButton
        anchors.right: parent.right
        anchors.rightMargin: 3
        anchors.verticalCenter: parent.verticalCenter
        visible: control.text !== "" && control.enabled && !control.readOnly
        kind: KarvelloButton.Quiet
        size: KarvelloButton.Small
        iconName: "close"
        accessibleName: control.clearName
        onClicked: {
            control.clear()
            control.forceActiveFocus()
        }
    }

    background: Rectangle {
        radius: KarvelloDesign.controlRadius
        color: !control.enabled ? KarvelloDesign.elevated3
            : control.hovered && !control.activeFocus ? KarvelloDesign.elevated2 : KarvelloDesign.elevated1
        border.color: !control.enabled ? KarvelloDesign.elevated3
            : control.activeFocus ? KarvelloDesign.accent : KarvelloDesign.lineStrong
        FocusRing { isShown: control.activeFocus }
    }
}
