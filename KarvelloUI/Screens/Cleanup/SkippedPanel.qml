import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design
import Karvello.Screens.Cleanup

// What the scan passed over, and why.
SidePanel {
    id: control

    required property CleanupScreenModel screen
    property bool isClosable: true

    title: screen.texts.skipped
    count: screen.skippedCount
    note: isClosable ? screen.skippedSummary : screen.texts.skippedNote
    closeName: isClosable ? screen.texts.close : ""
    model: screen.skipped
    delegate: T.Control {
        id: item
        ListView.onPooled: visible = false
        ListView.onReused: visible = true
        required property string path
        required property string reason
        required property bool isPermission

        width: ListView.view ? ListView.view.width : 0
        implicitHeight: Math.max(44, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
        horizontalPadding: KarvelloDesign.spacing20
        verticalPadding: KarvelloDesign.spacing8
        focusPolicy: ListView.isCurrentItem ? Qt.StrongFocus : Qt.ClickFocus
        KarvelloSpoken.role: Accessible.ListItem
        Accessible.name: KarvelloDesign.spoken([path, reason])
        KarvelloSpoken.focusable: true

        contentItem: RowLayout {
            spacing: KarvelloDesign.spacing12

            KarvelloIcon { name: item.isPermission ? "warning" : "lock" }
            KarvelloText {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                text: item.path
                color: KarvelloDesign.ink
                elide: Text.ElideMiddle
                Accessible.ignored: true
            }
            KarvelloText {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                text: item.reason
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
        background: Item {
            Rectangle {
                anchors.bottom: parent.bottom
                width: parent.width
                height: 1
                color: KarvelloDesign.lineSoft
            }
            FocusRing {
                isShown: item.visualFocus
                distance: 2
                radius: KarvelloDesign.checkBoxRadius
            }
        }
    }
}
