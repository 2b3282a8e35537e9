pragma ComponentBehavior: Bound
import QtQuick
import Karvello.Design
import Karvello.Screens.Cleanup

// What can be done with one row besides selecting it.
KarvelloMenu {
    id: control

    required property CleanupScreenModel screen
    property int row: -1
    property bool isOpenRow: false
    property var snoozes: []

    // `at`: in the coordinates of the parent.
    function openFor(forRow: int, at: point) {
        row = forRow
        isOpenRow = screen.isRowOpen(forRow)
        snoozes = screen.snoozesOf(forRow)
        accessibleName = screen.menuNameOf(forRow)
        x = at.x
        y = at.y
        open()
        currentIndex = 0
    }

    KarvelloMenuItem {
        text: control.isOpenRow ? control.screen.texts.hideDetails : control.screen.texts.showDetails
        iconName: "info"
        onTriggered: control.screen.setOpen(control.row, !control.isOpenRow)
    }
    KarvelloMenuItem {
        text: control.screen.texts.showInFileManager
        iconName: "folder"
        onTriggered: control.screen.reveal(control.row)
    }
    Instantiator {
        model: control.snoozes
        delegate: KarvelloMenuItem {
            required property var modelData
            text: modelData.text
            iconName: "hidden"
            enabled: !control.screen.isBusy
            onTriggered: control.screen.snooze(control.row, modelData.value)
        }
        onObjectAdded: (index, object) => control.insertItem(2 + index, object)
        onObjectRemoved: (index, object) => control.removeItem(object)
    }
}
