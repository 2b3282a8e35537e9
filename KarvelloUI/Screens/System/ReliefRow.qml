import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design

// A running application: box or lock, what it is, and what it takes. It holds no state: whoever owns the selection sets
// `isSelected`.
T.CheckDelegate {
    id: control

    // A row that waits to be used again is only culled by its view: assistants would still read it and press it.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true

    required property int index
    required property string name
    required property string identifier
    required property string lockReason
    required property bool isSelectable
    required property bool isSelected
    required property real fraction
    required property bool isHeavy
    required property string percentText
    required property string sizeText
    required property string accessibleName
    // No request is under way.
    property bool canToggle: true

    readonly property bool isLargeText: KarvelloDesign.textFactor >= 1.25

    signal toggleRequested()

    function toggleIfSelectable() {
        if (control.canToggle && control.isSelectable)
            control.toggleRequested()
    }

    // Its kind is what makes it a check box for assistants; the state is the owner's.
    checkable: false
    implicitWidth: 640
    implicitHeight: Math.max(50, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    horizontalPadding: KarvelloDesign.spacing20
    verticalPadding: KarvelloDesign.spacing8
    hoverEnabled: true
    onClicked: toggleIfSelectable()

    Accessible.name: accessibleName
    KarvelloSpoken.focusable: true
    KarvelloSpoken.role: Accessible.CheckBox
    KarvelloSpoken.checkable: isSelectable
    KarvelloSpoken.checked: isSelectable && isSelected
    Accessible.onToggleAction: toggleIfSelectable()
    Accessible.onPressAction: toggleIfSelectable()

    contentItem: RowLayout {
        spacing: KarvelloDesign.spacing12

        KarvelloCheckBox {
            Layout.leftMargin: -padding
            Layout.rightMargin: -padding
            isLocked: !control.isSelectable
            checkState: control.isSelected ? Qt.Checked : Qt.Unchecked
            focusPolicy: Qt.NoFocus
            isAsking: true
            onClicked: control.toggleIfSelectable()
            Accessible.ignored: true
        }
        IconTile {
            name: "application"
            opacity: control.isSelectable ? 1 : 0.5
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 0

            RowLayout {
                spacing: KarvelloDesign.spacing8

                KarvelloText {
                    Layout.fillWidth: true
                    Layout.maximumWidth: Math.ceil(implicitWidth)
                    text: control.name
                    emphasis: KarvelloText.Medium
                    color: KarvelloDesign.ink
                    Accessible.ignored: true
                }
                KarvelloPill {
                    visible: text !== ""
                    text: control.lockReason
                    Accessible.ignored: true
                }
                Item { Layout.fillWidth: true }
            }
            KarvelloText {
                Layout.fillWidth: true
                visible: text !== ""
                text: control.identifier
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                elide: Text.ElideMiddle
                Accessible.ignored: true
            }
        }
        KarvelloProgressBar {
            Layout.preferredWidth: control.isLargeText ? 96 : 160
            value: control.fraction
            thickness: 6
            tint: control.isHeavy ? KarvelloDesign.caution : KarvelloDesign.lineStrong
            Accessible.ignored: true
        }
        KarvelloText {
            Layout.preferredWidth: Math.round(76 * KarvelloDesign.textFactor)
            visible: text !== ""
            text: control.sizeText
            color: KarvelloDesign.ink3
            horizontalAlignment: Text.AlignRight
            Accessible.ignored: true
        }
        KarvelloText {
            Layout.preferredWidth: Math.round(44 * KarvelloDesign.textFactor)
            text: control.percentText
            emphasis: KarvelloText.Medium
            color: KarvelloDesign.ink
            horizontalAlignment: Text.AlignRight
            Accessible.ignored: true
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
