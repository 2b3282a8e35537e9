pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design

// One copy in a group of duplicates. The keeper has a lock, says why it is kept and cannot be selected; an extra has a box.
// It holds no state: whoever owns the selection sets `isChecked`.
T.CheckDelegate {
    id: control

    required property string name
    property string path
    // "Keeper", or "Extra copy".
    property string kindText
    property bool isKeeper: false
    // Why this copy is kept.
    property list<string> reasons
    property string age
    property string size
    property string iconName: "file"
    property bool isChecked: false
    property bool isSelectable: !isKeeper
    property string disabledReason
    property bool isLast: false
    // What the menu button is called; without a name there is none.
    property string menuName
    property string accessibleName: KarvelloDesign.spoken([name, kindText, ...reasons, size, path, age])
    readonly property bool isLargeText: KarvelloDesign.textFactor >= 1.25

    signal toggleRequested()
    signal menuRequested(point at)

    function toggleIfSelectable() {
        if (control.enabled && control.isSelectable)
            control.toggleRequested()
    }

    checkable: false
    implicitWidth: 640
    implicitHeight: Math.max(isKeeper ? 56 : 52, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    horizontalPadding: KarvelloDesign.spacing16
    verticalPadding: KarvelloDesign.spacing8
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    onClicked: toggleIfSelectable()

    Accessible.name: accessibleName
    Accessible.description: isSelectable ? "" : disabledReason
    KarvelloSpoken.focusable: true
    KarvelloSpoken.role: isKeeper ? Accessible.ListItem : Accessible.CheckBox
    KarvelloSpoken.checkable: isSelectable
    KarvelloSpoken.checked: isSelectable && isChecked
    Accessible.onToggleAction: toggleIfSelectable()
    Accessible.onPressAction: toggleIfSelectable()

    Keys.onPressed: event => {
        event.accepted = control.menuName !== ""
            && (event.key === Qt.Key_Menu || event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier)
        if (event.accepted)
            control.menuRequested(Qt.point(leftPadding, height))
    }
    MouseArea {
        anchors.fill: parent
        enabled: control.menuName !== ""
        acceptedButtons: Qt.RightButton
        onClicked: mouse => control.menuRequested(Qt.point(mouse.x, mouse.y))
    }

    contentItem: RowLayout {
        spacing: KarvelloDesign.spacing12

        KarvelloCheckBox {
            Layout.leftMargin: -padding
            Layout.rightMargin: -padding
            isLocked: !control.isSelectable
            lockTint: control.isKeeper ? KarvelloDesign.accent : KarvelloDesign.ink3
            disabledReason: control.disabledReason
            checkState: control.isChecked ? Qt.Checked : Qt.Unchecked
            focusPolicy: Qt.NoFocus
            isAsking: true
            onClicked: control.toggleIfSelectable()
            Accessible.ignored: true
        }
        IconTile {
            name: control.iconName
            color: control.isKeeper ? KarvelloDesign.accentSoft : KarvelloDesign.elevated3
            tint: control.isKeeper ? KarvelloDesign.accent : KarvelloDesign.ink2
        }
        ColumnLayout {
            spacing: 0

            RowLayout {
                spacing: KarvelloDesign.spacing8
                KarvelloText {
                    Layout.fillWidth: true
                    Layout.maximumWidth: Math.ceil(implicitWidth)
                    text: control.name
                    emphasis: control.isKeeper ? KarvelloText.Strong : KarvelloText.Medium
                    color: KarvelloDesign.ink
                    Accessible.ignored: true
                }
                KarvelloPill {
                    visible: control.isKeeper && text !== ""
                    kind: KarvelloDesign.AccentPill
                    text: control.kindText
                    Accessible.ignored: true
                }
                KarvelloText {
                    visible: !control.isKeeper && text !== ""
                    text: control.kindText
                    textStyle: KarvelloDesign.small
                    color: KarvelloDesign.ink3
                    Accessible.ignored: true
                }
                Item { Layout.fillWidth: true }
            }
            KarvelloText {
                Layout.fillWidth: true
                visible: text !== ""
                text: control.isLargeText && control.age !== "" ? control.path + " · " + control.age : control.path
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                elide: Text.ElideMiddle
                Accessible.ignored: true
            }
            Flow {
                Layout.fillWidth: true
                Layout.topMargin: KarvelloDesign.spacing4
                visible: control.isLargeText && control.reasons.length > 0
                spacing: KarvelloDesign.spacing8
                Repeater {
                    model: control.isLargeText ? control.reasons : []
                    KarvelloPill {
                        required property string modelData
                        text: modelData
                        Accessible.ignored: true
                    }
                }
            }
        }
        Row {
            visible: !control.isLargeText && control.reasons.length > 0
            spacing: KarvelloDesign.spacing8
            Repeater {
                model: control.isLargeText ? [] : control.reasons
                KarvelloPill {
                    required property string modelData
                    text: modelData
                    Accessible.ignored: true
                }
            }
        }
        KarvelloText {
            Layout.preferredWidth: Math.max(Math.round(72 * KarvelloDesign.textFactor), Math.ceil(implicitWidth))
            visible: !control.isLargeText && text !== ""
            text: control.age
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            horizontalAlignment: Text.AlignRight
            Accessible.ignored: true
        }
        KarvelloText {
            Layout.preferredWidth: Math.max(Math.round(72 * KarvelloDesign.textFactor), Math.ceil(implicitWidth))
            text: control.size
            emphasis: KarvelloText.Medium
            color: KarvelloDesign.ink
            horizontalAlignment: Text.AlignRight
            Accessible.ignored: true
        }
        KarvelloButton {
            visible: control.menuName !== ""
            kind: KarvelloButton.Quiet
            size: KarvelloButton.Small
            focusPolicy: Qt.NoFocus
            iconName: "more"
            accessibleName: control.menuName
            onClicked: control.menuRequested(mapToItem(control, 0, height))
        }
    }
    background: Rectangle {
        // The last one lies in the round corners of its card.
        radius: control.isLast ? KarvelloDesign.cardRadius - 1 : 0
        color: control.isKeeper || control.hovered ? KarvelloDesign.elevated2 : "transparent"
        Rectangle {
            visible: control.isLast
            width: parent.width
            height: parent.height / 2
            color: parent.color
        }
        Rectangle {
            anchors.bottom: parent.bottom
            visible: !control.isLast
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
