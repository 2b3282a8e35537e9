import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design

// Rows of a group: as high as they are up to a limit, then they scroll. One row can be reached by Tab, with the buttons in
// it; the arrows move to the others.
ListView {
    id: list

    property string accessibleName

    function moveTo(row: int) {
        currentIndex = Math.max(0, Math.min(row, count - 1))
        positionViewAtIndex(currentIndex, ListView.Contain)
        currentItem?.forceActiveFocus(Qt.TabFocusReason)
    }

    Layout.fillWidth: true
    implicitHeight: Math.min(Math.ceil(contentHeight), Math.round(400 * KarvelloDesign.textFactor))
    visible: count > 0
    clip: true
    reuseItems: true
    interactive: contentHeight > height
    keyNavigationEnabled: false
    highlightMoveDuration: 0
    boundsBehavior: Flickable.StopAtBounds
    T.ScrollBar.vertical: KarvelloScrollBar {}

    // The place stays when its row goes.
    onCountChanged: {
        if (currentIndex < 0 && count > 0)
            currentIndex = 0
    }

    Accessible.role: Accessible.List
    Accessible.name: accessibleName

    Keys.onPressed: event => {
        const page = Math.max(1, Math.floor(height / Math.max(1, currentItem?.height ?? 53)) - 1)
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
