pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Karvello.Design

// Areas as large as what they hold. The cells are a list of { id, name, sizeText, countText, partialText, shareText, tint,
// x, y, width, height } with a place in the unit square. One stop for Tab; arrows go to the nearest cell and select it. It
// only asks: whoever owns the selection sets `selectedId`.
FocusScope {
    id: control

    property var cells: []
    property var selectedId
    // What the pointer is over elsewhere, in the table beside the map.
    property var hoveredId
    property string accessibleName
    readonly property int gap: 3
    readonly property int selectedIndex: indexOf(selectedId)
    // The cell that has, or gets, the focus.
    property int currentIndex: selectedIndex >= 0 ? selectedIndex : 0
    property var toldId

    // Undefined when the pointer has left.
    signal hovered(var id)
    signal selected(var id)
    signal activated(var id)

    function indexOf(id: var): int {
        for (let index = 0; index < cells.length; ++index) {
            if (cells[index].id === id)
                return index
        }
        return -1
    }

    // Which begins where this one ends in that direction: the closest, and of those the one that lies least beside the way.
    function nearest(from: int, key: int): int {
        const isAcross = key === Qt.Key_Left || key === Qt.Key_Right
        const isForward = key === Qt.Key_Right || key === Qt.Key_Down
        const along = cell => isAcross ? [cell.x, cell.x + cell.width] : [cell.y, cell.y + cell.height]
        const beside = cell => isAcross ? [cell.y, cell.y + cell.height] : [cell.x, cell.x + cell.width]
        const start = along(cells[from])
        const side = beside(cells[from])
        let best = -1
        let least = Infinity
        for (let index = 0; index < cells.length; ++index) {
            const way = along(cells[index])
            const other = beside(cells[index])
            const ahead = isForward ? way[0] - start[1] : start[0] - way[1]
            const apart = Math.max(0, other[0] - side[1], side[0] - other[1])
            const offset = Math.abs(other[0] + other[1] - side[0] - side[1]) / 2
            const distance = Math.max(0, ahead) + 2 * apart + offset / 8
            if (index !== from && ahead > -0.001 && distance < least) {
                least = distance
                best = index
            }
        }
        return best
    }

    // A cell is entered before the last one is left, which is no news then.
    function tell(isOver: bool, id: var) {
        if (isOver || toldId === id) {
            toldId = isOver ? id : undefined
            hovered(toldId)
        }
    }

    function moveTo(index: int) {
        if (index < 0 || index >= cells.length)
            return
        selected(cells[index].id)
        currentIndex = index
        const item = repeater.itemAt(index) as T.Control
        item.forceActiveFocus(Qt.TabFocusReason)
        // The selection may have given it the focus already, and then nobody would see it.
        item.focusReason = Qt.TabFocusReason
    }

    implicitWidth: 480
    implicitHeight: 360
    onSelectedIndexChanged: currentIndex = Math.max(0, selectedIndex)
    onCellsChanged: currentIndex = Math.max(0, selectedIndex)

    Accessible.role: Accessible.List
    Accessible.name: accessibleName

    Keys.onPressed: event => {
        const arrows = [Qt.Key_Left, Qt.Key_Right, Qt.Key_Up, Qt.Key_Down]
        event.accepted = true
        if (control.cells.length > 0 && arrows.includes(event.key))
            control.moveTo(control.nearest(control.currentIndex, event.key))
        else if (event.key === Qt.Key_Home)
            control.moveTo(0)
        else if (event.key === Qt.Key_End)
            control.moveTo(control.cells.length - 1)
        else if ((event.key === Qt.Key_Return || event.key === Qt.Key_Enter || event.key === Qt.Key_Space)
                 && control.currentIndex < control.cells.length) {
            if (!event.isAutoRepeat)
                control.activated(control.cells[control.currentIndex].id)
        } else
            event.accepted = false
    }

    Repeater {
        id: repeater
        model: control.cells

        KarvelloTreemapCell {
            id: cell

            required property var modelData
            required property int index

            // Whole pixels on both sides, so that all gaps are the same.
            x: Math.round(modelData.x * (control.width + control.gap))
            y: Math.round(modelData.y * (control.height + control.gap))
            width: Math.max(1, Math.round((modelData.x + modelData.width) * (control.width + control.gap)) - control.gap - x)
            height: Math.max(1, Math.round((modelData.y + modelData.height) * (control.height + control.gap)) - control.gap - y)
            cell: modelData
            isSelected: control.selectedIndex === index
            isHovered: hovered || (control.hoveredId !== undefined && control.hoveredId === modelData.id)
            // What has the focus has to keep it until the next one takes it.
            activeFocusOnTab: control.currentIndex === index || activeFocus
            Keys.forwardTo: [control]
            focus: control.currentIndex === index

            function select() {
                control.currentIndex = cell.index
                control.selected(cell.modelData.id)
            }

            onClicked: select()
            onDoubleClicked: control.activated(cell.modelData.id)
            onHoveredChanged: control.tell(cell.hovered, cell.modelData.id)
            Accessible.onPressAction: select()
        }
    }
}
