import QtQuick
import QtQuick.Templates as T
import Karvello.Design

// A list that is one stop of the keyboard: arrows move inside, and the row that they reach shows its focus.
ListView {
    id: list

    property string accessibleName

    // The keyboard went to another row.
    signal moved(int row)

    function moveTo(row: int) {
        const reached = Math.max(0, Math.min(row, count - 1))
        moved(reached)
        // Who follows `moved` may have set it, and keeps its binding.
        if (currentIndex !== reached)
            currentIndex = reached
        positionViewAtIndex(currentIndex, ListView.Contain)
        const item = currentItem as T.Control
        if (item === null)
            return
        item.forceActiveFocus(Qt.TabFocusReason)
        // The list has given it the focus by itself already.
        item.focusReason = Qt.TabFocusReason
    }

    clip: true
    reuseItems: true
    currentIndex: 0
    keyNavigationEnabled: false
    highlightMoveDuration: 0
    boundsBehavior: Flickable.StopAtBounds
    // Rows ahead are ready before they are seen.
    cacheBuffer: 400
    T.ScrollBar.vertical: KarvelloScrollBar {}

    Accessible.role: Accessible.List
    Accessible.name: accessibleName

    Keys.onPressed: event => {
        const page = Math.max(1, Math.floor(height / Math.max(1, currentItem?.height ?? 54)) - 1)
        const steps = {
            [Qt.Key_Down]: 1,
            [Qt.Key_Up]: -1,
            [Qt.Key_PageDown]: page,
            [Qt.Key_PageUp]: -page,
            [Qt.Key_Home]: -count,
            [Qt.Key_End]: count
        }
        event.accepted = count > 0 && event.modifiers === Qt.NoModifier && event.key in steps
        if (event.accepted)
            moveTo(currentIndex + steps[event.key])
    }
}
