// Parts of this file know the ids around them. The pragma that would say so breaks loaders and inline parts in Qt 6.4.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Evidence
import Karvello.Screens.Exports

// The history of cleans and restores. A row opens to tell which items it dealt with, and why it left others.
ListCard {
    id: control

    required property CleanupHistoryModel history

    title: history.title
    headItems: ExportMenu {
        objectName: "exportHistory"
        exportModel: control.history.exportMenu
        size: KarvelloButton.Small
    }

    RowLayout {
        Layout.margins: KarvelloDesign.spacing20
        visible: control.history.emptyText !== ""
        spacing: KarvelloDesign.spacing12

        BusyArc { visible: control.history.isLoading }
        KarvelloText {
            objectName: "historyState"
            Layout.fillWidth: true
            text: control.history.emptyText
            color: KarvelloDesign.ink3
            wrapMode: Text.Wrap
        }
    }
    KarvelloRows {
        objectName: "historyRows"
        Layout.fillWidth: true
        visible: count > 0
        maximumHeight: 560 * KarvelloDesign.textFactor
        accessibleName: control.history.title
        model: control.history.rows

        delegate: CleanupHistoryRow {
            required property int index

            width: ListView.view.width
            openName: control.history.openName
            focusPolicy: ListView.isCurrentItem ? Qt.StrongFocus : Qt.ClickFocus
            onOpenRequested: isOpen => control.history.setOpen(index, isOpen)
        }
    }
}
