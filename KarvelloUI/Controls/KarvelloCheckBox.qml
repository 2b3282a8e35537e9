import QtQuick
import QtQuick.Templates as T
import Karvello.Design

// A mixed box becomes checked by a press. What may not be selected has a lock in the box's place.
T.CheckBox {
    id: control

    property string accessibleName: text
    property string disabledReason
    property bool isLocked: false
    property color lockTint: KarvelloDesign.ink3
    // A press only asks: whoever owns the state answers by `checkState`.
    property bool isAsking: false
    readonly property bool isMarked: checkState !== Qt.Unchecked

    enabled: !isLocked
    implicitWidth: Math.max(leftPadding + rightPadding + (text === "" ? indicator.implicitWidth : implicitContentWidth), 32)
    implicitHeight: Math.max(indicator.implicitHeight + topPadding + bottomPadding, implicitContentHeight, 32)
    padding: KarvelloDesign.spacing8
    spacing: KarvelloDesign.spacing8
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    nextCheckState: isAsking ? () => control.checkState : undefined

    Accessible.name: accessibleName
    Accessible.description: enabled ? "" : disabledReason
    KarvelloSpoken.role: Accessible.CheckBox
    KarvelloSpoken.checkable: !isLocked
    KarvelloSpoken.checked: checkState === Qt.Checked
    Accessible.checkStateMixed: checkState === Qt.PartiallyChecked
    Accessible.onToggleAction: toggleByAssistant()
    Accessible.onPressAction: toggleByAssistant()

    function toggleByAssistant() {
        if (!control.enabled)
            return
        if (!control.isAsking) {
            control.toggle()
            control.toggled()
        }
        control.clicked()
    }

    KarvelloHint {
        target: control
        text: control.enabled ? "" : control.disabledReason
    }

    indicator: Item {
        implicitWidth: 2 * Math.round(8 * KarvelloDesign.textFactor)
        implicitHeight: implicitWidth
        x: control.leftPadding
        y: Math.round((control.height - height) / 2)

        Rectangle {
            anchors.fill: parent
            visible: !control.isLocked
            radius: KarvelloDesign.checkBoxRadius
            color: control.isMarked ? control.enabled ? KarvelloDesign.accent : KarvelloDesign.lineStrong
                : control.enabled ? control.hovered ? KarvelloDesign.elevated2 : KarvelloDesign.elevated1
                : KarvelloDesign.elevated3
            border.width: control.isMarked ? 0 : 1
            border.color: control.enabled ? KarvelloDesign.ink4 : KarvelloDesign.lineStrong
            KarvelloIcon {
                anchors.centerIn: parent
                visible: control.isMarked
                name: control.checkState === Qt.Checked ? "check" : "minus"
                tint: KarvelloDesign.accentForeground
                size: 14
            }
        }
        KarvelloIcon {
            anchors.centerIn: parent
            visible: control.isLocked
            name: "lock"
            tint: control.lockTint
        }
        FocusRing {
            isShown: control.visualFocus
            radius: KarvelloDesign.checkBoxRadius + 3
        }
    }

    contentItem: KarvelloText {
        leftPadding: control.indicator.width + control.spacing
        visible: text !== ""
        text: control.text
        color: control.enabled ? KarvelloDesign.ink2 : KarvelloDesign.ink4
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
