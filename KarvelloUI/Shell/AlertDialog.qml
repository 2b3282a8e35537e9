// The button is named for the moment at which the dialog opens; by then its contents are there.
// qmllint disable deferred-property-id
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design
import Karvello.Shell

// A failure, with one button that dismisses it.
T.Dialog {
    id: control

    required property WindowMessagesModel messages
    // Knows what gets the focus back.
    readonly property KarvelloFocusReturn focusReturn: KarvelloFocusReturn {}

    // The item that Qt makes for the window of a dialog is the one that is a dialog for assistants.
    function nameIt() {
        contentItem.parent.Accessible.name = messages.alertTitle
        contentItem.parent.Accessible.description = messages.alertText
    }
    // Its failure may give way to another one while it is open.
    readonly property Connections words: Connections {
        target: control.messages
        function onAlertChanged() {
            if (control.visible)
                control.nameIt()
        }
    }

    parent: T.Overlay.overlay
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? Math.round((parent.height - height) / 2) : 0
    width: Math.min(Math.round(520 * KarvelloDesign.textFactor),
                    parent ? parent.width - 2 * KarvelloDesign.spacing32 : 520)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: KarvelloDesign.spacing24
    modal: true
    focus: true
    visible: messages.hasAlert
    closePolicy: T.Popup.CloseOnEscape
    onAboutToShow: {
        focusReturn.remember(parent.Window.activeFocusItem)
        nameIt()
    }
    // While it still comes into sight, no key may reach what it covers.
    onVisibleChanged: {
        if (visible)
            okButton.forceActiveFocus(Qt.TabFocusReason)
    }
    onClosed: {
        // Else it would have the focus at the next opening before it is given, and not show it.
        okButton.focus = false
        focusReturn.give()
        // The next one opens here, and is announced as the first was.
        messages.dismissAlert()
    }
    T.Overlay.modal: Rectangle { color: KarvelloDesign.scrim }

    contentItem: ColumnLayout {
        spacing: KarvelloDesign.spacing12

        RowLayout {
            spacing: KarvelloDesign.spacing16
            IconTile {
                Layout.alignment: Qt.AlignTop
                size: 40
                iconSize: 20
                name: "warning"
            }
            ColumnLayout {
                spacing: KarvelloDesign.spacing4
                KarvelloText {
                    Layout.fillWidth: true
                    text: control.messages.alertTitle
                    textStyle: KarvelloDesign.dialogTitle
                    color: KarvelloDesign.ink
                    wrapMode: Text.Wrap
                    Accessible.role: Accessible.Heading
                }
                KarvelloText {
                    Layout.fillWidth: true
                    text: control.messages.alertText
                    wrapMode: Text.Wrap
                }
            }
        }
        KarvelloButton {
            id: okButton
            Layout.alignment: Qt.AlignRight
            text: control.messages.okText
            onClicked: control.close()
        }
    }
    background: Rectangle {
        radius: KarvelloDesign.cardRadius
        color: KarvelloDesign.elevated1
        border.color: KarvelloDesign.lineStrong
    }
}
