import QtQuick
import QtQuick.Templates as T
import Karvello.Design

T.Switch {
    id: control

    property string accessibleName: text
    property string disabledReason

    implicitWidth: leftPadding + rightPadding + (text === "" ? indicator.implicitWidth : implicitContentWidth)
    implicitHeight: Math.max(indicator.implicitHeight + topPadding + bottomPadding, implicitContentHeight, 28)
    padding: KarvelloDesign.spacing4
    spacing: KarvelloDesign.spacing8
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus

    Accessible.name: accessibleName
    Accessible.description: enabled ? "" : disabledReason
    KarvelloSpoken.role: Accessible.CheckBox
    KarvelloSpoken.checkable: true
    KarvelloSpoken.checked: checked
    Accessible.onToggleAction: toggleByAssistant()
    Accessible.onPressAction: toggleByAssistant()

    function toggleByAssistant() {
        if (!control.enabled)
            return
        control.toggle()
        control.toggled()
        control.clicked()
    }

    KarvelloHint {
        target: control
        text: control.enabled ? "" : control.disabledReason
    }

    indicator: Rectangle {
        implicitWidth: 2 * Math.round(18 * KarvelloDesign.textFactor)
        implicitHeight: 2 * Math.round(10 * KarvelloDesign.textFactor)
        x: control.leftPadding
        y: Math.round((control.height - height) / 2)
        radius: height / 2
        color: !control.enabled ? KarvelloDesign.elevated3
            : control.checked ? control.hovered ? KarvelloDesign.accentDeep : KarvelloDesign.accent
            : control.hovered ? KarvelloDesign.lineStrong : KarvelloDesign.elevated3
        border.width: control.checked && control.enabled ? 0 : 1
        border.color: control.enabled ? KarvelloDesign.ink4 : KarvelloDesign.lineStrong
        Behavior on color { ColorAnimation { duration: KarvelloDesign.shortDuration } }

        Rectangle {
            x: control.checked ? parent.width - width - 3 : 3
            anchors.verticalCenter: parent.verticalCenter
            width: parent.height - 6
            height: width
            radius: width / 2
            color: !control.enabled ? KarvelloDesign.lineStrong
                : control.checked ? KarvelloDesign.accentForeground : KarvelloDesign.ink4
            Behavior on x { NumberAnimation { duration: KarvelloDesign.shortDuration } }
        }
        FocusRing {
            isShown: control.visualFocus
            radius: height / 2
        }
    }

    contentItem: KarvelloText {
        leftPadding: control.indicator.width + control.spacing
        visible: text !== ""
        text: control.text
        color: control.enabled ? KarvelloDesign.ink2 : KarvelloDesign.ink4
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
