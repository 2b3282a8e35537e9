pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Karvello.Design
import Karvello.Screens.Cleanup

// The candidates, section by section. One stop for Tab; inside, the arrows move. The head of the section that the topmost row
// belongs to stays on top.
FocusScope {
    id: control

    required property CleanupScreenModel screen
    // A CleanupListModel.
    readonly property var rows: screen.list
    readonly property alias contentHeight: list.contentHeight

    function focusRow(row: int) {
        if (row < 0 || row >= list.count)
            return
        list.currentIndex = row
        list.positionViewAtIndex(row, ListView.Contain)
        const item = list.currentItem as CandidateRow
        if (!item)
            return
        const hidden = list.contentY + sticky.height - item.y
        if (hidden > 0 && !control.rows.isHead(row) && sticky.head.row >= 0)
            list.contentY = Math.max(list.originY, list.contentY - hidden)
        item.takeFocus(Qt.TabFocusReason)
    }
    function takeFocus() {
        focusRow(Math.max(0, list.currentIndex))
    }

    ListView {
        id: list

        function refreshSticky() {
            const top = indexAt(1, contentY + 1)
            const head = control.rows.headOf(top)
            const item = control.rows.isHead(top) ? itemAtIndex(top) : null
            sticky.head = head
            sticky.isNeeded = head.row >= 0 && !(item && item.y >= contentY)
            const below = indexAt(1, contentY + sticky.height)
            const pushing = below > top && control.rows.isHead(below) ? itemAtIndex(below) : null
            sticky.y = pushing ? Math.min(0, pushing.y - contentY - sticky.height) : 0
        }

        objectName: "candidates"
        anchors.fill: parent
        anchors.margins: 1
        model: control.rows
        clip: true
        focus: true
        reuseItems: true
        cacheBuffer: 400
        activeFocusOnTab: true
        keyNavigationEnabled: false
        highlightFollowsCurrentItem: false
        boundsBehavior: Flickable.StopAtBounds
        T.ScrollBar.vertical: KarvelloScrollBar {}
        onContentYChanged: refreshSticky()
        onCountChanged: {
            if (currentIndex < 0 && count > 0)
                currentIndex = 0
            later.restart()
        }

        Accessible.role: Accessible.List
        Accessible.name: control.screen.texts.list

        Keys.onPressed: event => {
            const page = Math.max(1, Math.floor(height / 54) - 1)
            const last = count - 1
            const moves = {
                [Qt.Key_Up]: Math.max(0, currentIndex - 1),
                [Qt.Key_Down]: Math.min(last, currentIndex + 1),
                [Qt.Key_Home]: 0,
                [Qt.Key_End]: last,
                [Qt.Key_PageUp]: Math.max(0, currentIndex - page),
                [Qt.Key_PageDown]: Math.min(last, currentIndex + page)
            }
            const isMove = event.key in moves && event.modifiers === Qt.NoModifier
            if (isMove)
                control.focusRow(moves[event.key])
            else if (event.key === Qt.Key_Left && control.rows.headOf(currentIndex).row >= 0)
                control.focusRow(control.rows.headOf(currentIndex).row)
            else
                return
            event.accepted = true
        }

        delegate: CandidateRow {
            id: row
            width: ListView.view ? ListView.view.width : 0
            screen: control.screen
            onMenuRequested: at => menu.openFor(row.index, row.mapToItem(control, at))
            onFocused: list.currentIndex = row.index
        }
    }
    KarvelloSectionHeader {
        id: sticky

        property bool isNeeded: false
        property var head: control.rows.headOf(-1)

        x: 1
        width: list.width
        visible: isNeeded
        parent: list
        z: 2
        name: head.name
        count: head.count
        note: head.note
        total: head.total
        checkState: head.checkState
        isOpen: head.isOpen
        openText: head.openText
        takesFocus: false
        enabled: !control.screen.isBusy
        // The row that it stands for is there for assistants.
        Accessible.ignored: true
        onToggleRequested: control.screen.toggleSection(head.id)
        onOpenRequested: isOpen => {
            const row = head.row
            control.screen.setSectionOpen(head.id, isOpen)
            list.positionViewAtIndex(row, ListView.Beginning)
        }
    }
    // Rows have their places once the list has laid them out.
    Timer {
        id: later
        interval: 0
        onTriggered: list.refreshSticky()
    }
    Connections {
        target: control.rows
        function onDataChanged() { later.restart() }
        function onRowsRemoved() { menu.close() }
        function onModelReset() {
            menu.close()
            later.restart()
        }
    }
    RowMenu {
        id: menu
        screen: control.screen
    }
}
