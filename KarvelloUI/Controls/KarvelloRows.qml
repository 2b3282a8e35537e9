import QtQuick
import QtQuick.Templates as T
import Karvello.Design

// A list that is one stop of the keyboard: arrows move inside, and the row that they reach shows its focus. A row takes
// `focusPolicy: ListView.isCurrentItem ? Qt.StrongFocus : Qt.ClickFocus`. On a page that scrolls by itself, the list is as
// high as its rows, up to a greatest height.
ListView {
    id: list

    property string accessibleName
    property real maximumHeight: Infinity

    // The keyboard went to another row.
    signal moved(int row)

    function moveTo(row: int) {
        const reached = Math.max(0, Math.min(row, count - 1))
        positionViewAtIndex(reached, ListView.Contain)
        // What has the focus may not stop being a stop of Tab before it has given it away.
        itemAtIndex(reached)?.forceActiveFocus(Qt.TabFocusReason)
        currentIndex = reached
        moved(reached)
    }

    implicitHeight: Math.min(Math.ceil(contentHeight), maximumHeight)
    clip: true
    reuseItems: true
    currentIndex: 0
    keyNavigationEnabled: false
    highlightMoveDuration: 0
    boundsBehavior: Flickable.StopAtBounds
    interactive: contentHeight > height
    // Rows ahead are ready before they are seen.
    cacheBuffer: 400
    T.ScrollBar.vertical: KarvelloScrollBar {
        // Rows that become lower leave the old share in it.
        policy: list.interactive ? T.ScrollBar.AsNeeded : T.ScrollBar.AlwaysOff
    }

    // A list that was empty for a while has a stop again.
    onCountChanged: {
        if (currentIndex < 0 && count > 0)
            currentIndex = 0
    }

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
