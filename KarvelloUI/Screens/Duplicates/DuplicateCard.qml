pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Karvello.Design
import Karvello.Screens.Duplicates

// A group of duplicates: its head, the copy that stays, and the others. The keyboard goes through them as through one list.
FocusScope {
    id: card

    required property DuplicatesScreenModel screen
    required property int index
    required property string groupID
    required property string title
    required property string stateText
    required property string bytesText
    required property int checkState
    required property bool isLocked
    required property bool isAllSelected
    required property var files
    required property var selectedFiles
    property bool isCurrent: false
    // The head is row 0.
    property int currentRow: 0
    readonly property int rowCount: 1 + copies.count

    signal pressed()
    signal menuRequested(Item row, int file, point at)

    function row(number: int): T.Control {
        if (number === 0)
            return head
        return copies.itemAt(number - 1) as T.Control
    }

    // Whether there is such a row.
    function moveTo(number: int): bool {
        if (number < 0 || number >= rowCount)
            return false
        currentRow = number
        const reached = row(number)
        reached.forceActiveFocus(Qt.TabFocusReason)
        // It may have got the focus with its number already.
        reached.focusReason = Qt.TabFocusReason
        return true
    }

    implicitHeight: column.implicitHeight + 2
    // Its view only culls it: assistants would still read it and press it.
    ListView.onPooled: {
        currentRow = 0
        visible = false
    }
    ListView.onReused: visible = true

    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Rectangle {
        anchors.fill: parent
        radius: KarvelloDesign.cardRadius
        color: KarvelloDesign.elevated1
        border.color: KarvelloDesign.line
    }
    // No layout: one that is hidden while its rows go keeps looking at them, and the program crashes in it (Qt 6.4).
    Column {
        id: column
        x: 1
        y: 1
        width: parent.width - 2

        DuplicateCardHead {
            id: head
            objectName: "head"
            width: column.width
            focus: card.currentRow === 0
            focusPolicy: activeFocus || (card.isCurrent && card.currentRow === 0) ? Qt.StrongFocus : Qt.ClickFocus
            title: card.title
            stateText: card.stateText
            bytesText: card.bytesText
            actionText: card.isAllSelected ? card.screen.clearGroupText : card.screen.selectExtrasText
            groupState: card.checkState
            isLocked: card.isLocked
            disabledReason: card.screen.notSelectableText
            onPressed: {
                card.currentRow = 0
                card.pressed()
            }
            onToggleRequested: card.screen.toggleGroup(card.index, card.groupID)
        }
        Rectangle {
            width: column.width
            height: 1
            color: KarvelloDesign.lineSoft
        }
        Repeater {
            id: copies
            model: card.files

            KarvelloKeeperRow {
                id: copy

                required property var modelData
                required property int index

                width: column.width
                focus: card.currentRow === index + 1
                focusPolicy: activeFocus || (card.isCurrent && card.currentRow === index + 1) ? Qt.StrongFocus : Qt.ClickFocus
                name: modelData.name
                path: modelData.path
                kindText: modelData.kind
                isKeeper: modelData.isKeeper
                reasons: modelData.reasons
                age: modelData.age
                size: modelData.size
                iconName: modelData.iconName
                isChecked: card.selectedFiles[index] ?? false
                isSelectable: modelData.isSelectable
                disabledReason: modelData.isKeeper ? card.screen.keeperText : card.screen.notSelectableText
                isLast: index === copies.count - 1
                menuName: card.screen.moreName
                accessibleName: modelData.spokenName
                onPressed: {
                    card.currentRow = index + 1
                    card.pressed()
                }
                onToggleRequested: card.screen.toggleFile(card.index, card.groupID, index)
                onMenuRequested: at => card.menuRequested(copy, index, at)
            }
        }
    }
}
