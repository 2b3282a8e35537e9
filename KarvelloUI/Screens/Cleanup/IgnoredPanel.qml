import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Cleanup

// What the user has hidden from the review, with the way back.
SidePanel {
    id: control

    required property CleanupScreenModel screen

    title: screen.texts.ignored
    count: screen.ignoredSummary
    note: screen.texts.ignoredNote
    closeName: screen.texts.close
    actionText: screen.texts.clearIgnored
    canAct: listCount > 0
    emptyText: screen.texts.ignoredEmpty
    onActionRequested: screen.showAllAgain()
    model: screen.ignored
    delegate: FocusScope {
        id: item
        ListView.onPooled: visible = false
        ListView.onReused: visible = true
        required property int index
        required property string name
        required property string path
        required property string duration
        required property string size
        readonly property IgnoredPanel panel: ListView.view ? ListView.view.parent as IgnoredPanel : null

        width: ListView.view ? ListView.view.width : 0
        implicitHeight: Math.max(54, row.implicitHeight + 2 * KarvelloDesign.spacing8)
        Accessible.role: Accessible.ListItem
        Accessible.name: KarvelloDesign.spoken([name, size, path, duration])

        RowLayout {
            id: row
            x: KarvelloDesign.spacing20
            width: parent.width - 2 * x
            anchors.verticalCenter: parent.verticalCenter
            spacing: KarvelloDesign.spacing12

            KarvelloIcon { name: "hidden" }
            ColumnLayout {
                Layout.preferredWidth: 1
                spacing: 0
                KarvelloText {
                    Layout.fillWidth: true
                    text: item.name
                    emphasis: KarvelloText.Medium
                    color: KarvelloDesign.ink
                    Accessible.ignored: true
                }
                KarvelloText {
                    Layout.fillWidth: true
                    text: item.path
                    textStyle: KarvelloDesign.small
                    color: KarvelloDesign.ink3
                    elide: Text.ElideMiddle
                    Accessible.ignored: true
                }
            }
            KarvelloText {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                text: item.duration
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            KarvelloText {
                text: item.size
                emphasis: KarvelloText.Medium
                color: KarvelloDesign.ink
                Accessible.ignored: true
            }
            KarvelloButton {
                objectName: "showAgain"
                focus: true
                // The list is one stop; arrows lead to the buttons of the other rows.
                focusPolicy: item.ListView.isCurrentItem ? Qt.StrongFocus : Qt.ClickFocus
                size: KarvelloButton.Small
                accessibleName: KarvelloDesign.spoken([text, item.name])
                text: item.panel ? item.panel.screen.texts.showAgain : ""
                onClicked: item.panel.screen.showAgain(item.index)
            }
        }
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: KarvelloDesign.lineSoft
        }
    }
}
