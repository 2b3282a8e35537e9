import QtQuick
import QtQuick.Templates as T
import Karvello.Design

// What can be done with a row or behind a button. Arrows, Return and Escape work; the focus goes back to where it was.
T.Menu {
    id: control

    property string accessibleName
    property real widest: 0
    // Knows what gets the focus back.
    readonly property KarvelloFocusReturn focusReturn: KarvelloFocusReturn {}

    // Opens it below an item, with the first entry chosen as a menu that the keyboard asked for has it.
    function openBelow(item: Item) {
        openAt(item, Qt.point(0, item.height + KarvelloDesign.spacing4))
    }

    // Where the item was pressed, or where its keyboard asks for it.
    function openAt(item: Item, at: point) {
        parent = item
        x = at.x
        y = at.y
        open()
        currentIndex = 0
    }

    implicitWidth: Math.max(160, widest + leftPadding + rightPadding)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    margins: KarvelloDesign.spacing8
    padding: KarvelloDesign.spacing4
    overlap: 1
    focus: true
    modal: true
    dim: false
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onAboutToShow: {
        let needed = 0
        for (let index = 0; index < count; ++index)
            needed = Math.max(needed, itemAt(index).implicitWidth)
        widest = needed
        focusReturn.remember(parent.Window.activeFocusItem)
        contentItem.parent.Accessible.name = accessibleName
    }
    onClosed: focusReturn.give()

    delegate: KarvelloMenuItem {}
    contentItem: ListView {
        implicitHeight: contentHeight
        model: control.contentModel
        interactive: contentHeight > height
        clip: true
        currentIndex: control.currentIndex
        highlightMoveDuration: 0
        boundsBehavior: Flickable.StopAtBounds
        T.ScrollBar.vertical: KarvelloScrollBar {}
    }
    background: Rectangle {
        radius: KarvelloDesign.controlRadius
        color: KarvelloDesign.elevated1
        border.color: KarvelloDesign.lineStrong
    }
}
