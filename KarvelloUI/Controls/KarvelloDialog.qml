import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design

// Asks before something moves. Cancel comes first and has the focus, so a stray Return or Escape changes nothing. It is
// `accepted` once, by the button alone.
T.Dialog {
    id: control

    default property alias content: column.data
    property string message
    property string iconName: "trash"
    // Without it there is only something to read, and `cancelText` closes it.
    required property string acceptText
    required property string cancelText
    property string acceptIconName: iconName
    property bool canAccept: true
    // Knows what gets the focus back.
    readonly property KarvelloFocusReturn focusReturn: KarvelloFocusReturn {}

    parent: T.Overlay.overlay
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? Math.round((parent.height - height) / 2) : 0
    width: Math.min(Math.round(520 * KarvelloDesign.textFactor),
                    parent ? parent.width - 2 * KarvelloDesign.spacing32 : 520)
    height: Math.min(implicitHeight, parent ? parent.height - 2 * KarvelloDesign.spacing16 : implicitHeight)
    implicitHeight: implicitHeaderHeight + implicitContentHeight + implicitFooterHeight + topPadding + bottomPadding
    padding: KarvelloDesign.spacing24
    topPadding: 0
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape
    onClosed: {
        // Else it would have the focus at the next opening before it is given, and not show it.
        cancelButton.focus = false
        focusReturn.give()
    }
    onAboutToShow: {
        focusReturn.remember(parent.Window.activeFocusItem)
        // The item that Qt makes for the window of a dialog is the one that is a dialog for assistants.
        contentItem.parent.Accessible.name = title
        contentItem.parent.Accessible.description = message
    }
    // While it still comes into sight, no key may reach what it covers.
    onVisibleChanged: {
        if (visible)
            cancelButton.forceActiveFocus(Qt.TabFocusReason)
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: KarvelloDesign.expandDuration }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: KarvelloDesign.expandDuration }
    }
    T.Overlay.modal: Rectangle { color: KarvelloDesign.scrim }

    header: Item {
        implicitHeight: head.implicitHeight + control.padding + KarvelloDesign.spacing16

        RowLayout {
            id: head
            x: control.padding
            y: control.padding
            width: parent.width - 2 * control.padding
            spacing: KarvelloDesign.spacing16

            IconTile {
                Layout.alignment: Qt.AlignTop
                size: 40
                iconSize: 20
                color: KarvelloDesign.accentSoft
                tint: KarvelloDesign.accent
                name: control.iconName
            }
            ColumnLayout {
                spacing: KarvelloDesign.spacing4
                KarvelloText {
                    Layout.fillWidth: true
                    text: control.title
                    textStyle: KarvelloDesign.dialogTitle
                    color: KarvelloDesign.ink
                    wrapMode: Text.Wrap
                    Accessible.role: Accessible.Heading
                }
                KarvelloText {
                    Layout.fillWidth: true
                    visible: text !== ""
                    text: control.message
                    wrapMode: Text.Wrap
                }
            }
        }
    }

    // What does not fit into the window scrolls between head and buttons, which can always be seen.
    readonly property Item body: ColumnLayout {
        id: column
        width: control.availableWidth
        spacing: KarvelloDesign.spacing12
    }
    contentItem: Flickable {
        function scrollBy(distance: real) {
            contentY = Math.max(0, Math.min(contentY + distance, contentHeight - height))
        }

        implicitHeight: control.body.implicitHeight
        contentHeight: control.body.implicitHeight
        interactive: contentHeight > height
        activeFocusOnTab: interactive
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive
        Component.onCompleted: control.body.parent = contentItem
        Keys.onUpPressed: scrollBy(-40)
        Keys.onDownPressed: scrollBy(40)
        Keys.onPressed: event => {
            event.accepted = event.key === Qt.Key_PageDown || event.key === Qt.Key_PageUp
            if (event.accepted)
                scrollBy(event.key === Qt.Key_PageDown ? height : -height)
        }
        // Beside the content, in the dialog's own margin.
        T.ScrollBar.vertical: KarvelloScrollBar {
            parent: control.contentItem.parent
            x: control.width - width
            y: control.contentItem.y
            height: control.contentItem.height
        }

        FocusRing {
            parent: control.contentItem
            isShown: control.contentItem.activeFocus
            distance: 0
        }
    }

    footer: Item {
        implicitHeight: buttons.implicitHeight + 2 * KarvelloDesign.spacing16

        Rectangle {
            width: parent.width
            height: 1
            color: KarvelloDesign.line
        }
        RowLayout {
            id: buttons
            anchors.right: parent.right
            anchors.rightMargin: control.padding
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, parent.width - 2 * control.padding)
            spacing: KarvelloDesign.spacing12

            KarvelloButton {
                id: cancelButton
                text: control.cancelText
                onClicked: control.reject()
            }
            KarvelloButton {
                Layout.fillWidth: true
                kind: KarvelloButton.Primary
                visible: text !== ""
                text: control.acceptText
                iconName: control.acceptIconName
                enabled: control.canAccept
                onClicked: control.accept()
            }
        }
    }

    background: Rectangle {
        radius: KarvelloDesign.cardRadius
        color: KarvelloDesign.elevated1
        border.color: KarvelloDesign.lineStrong
    }
}
