pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design
import Karvello.Screens.Insights
import Karvello.Screens.Duplicates

// Files with the same contents, group by group.
InsightPage {
    id: page

    required property DuplicatesScreenModel screen

    insights: screen

    footer: InsightFooter {
        objectName: "footer"
        Layout.fillWidth: true
        hasKeys: page.visible
        sideMargin: page.sideMargin
        showsCheckBox: false
        review: page.screen
    }

    ListView {
        id: list

        function moveToCard(card: int, atItsEnd: bool) {
            if (card < 0 || card >= count)
                return
            currentIndex = card
            positionViewAtIndex(card, ListView.Contain)
            const item = currentItem as DuplicateCard
            item.moveTo(atItsEnd ? item.rowCount - 1 : 0)
            showRow()
        }

        // A card may be higher than the list.
        function showRow() {
            const item = currentItem as DuplicateCard
            const row = item.row(item.currentRow)
            const top = row.mapToItem(contentItem, 0, 0).y
            if (top < contentY)
                contentY = top
            else if (top + row.height > contentY + height)
                contentY = top + row.height - height
        }

        objectName: "groups"
        Layout.fillWidth: true
        Layout.fillHeight: true
        // Cards go on below the footer, and the scroll bar stands beside them.
        Layout.rightMargin: -page.sideMargin
        Layout.bottomMargin: -KarvelloDesign.spacing24
        bottomMargin: KarvelloDesign.spacing24
        implicitHeight: 200
        model: page.screen.groups
        clip: true
        spacing: KarvelloDesign.spacing16
        reuseItems: true
        currentIndex: 0
        keyNavigationEnabled: false
        highlightMoveDuration: 0
        boundsBehavior: Flickable.StopAtBounds
        cacheBuffer: 400
        T.ScrollBar.vertical: KarvelloScrollBar {}

        Accessible.role: Accessible.List
        Accessible.name: page.screen.title

        Keys.onPressed: event => {
            const card = currentItem as DuplicateCard
            event.accepted = card !== null && event.modifiers === Qt.NoModifier
            if (!event.accepted)
                return
            if (event.key === Qt.Key_Down) {
                if (card.moveTo(card.currentRow + 1))
                    showRow()
                else
                    moveToCard(currentIndex + 1, false)
            } else if (event.key === Qt.Key_Up) {
                if (card.moveTo(card.currentRow - 1))
                    showRow()
                else
                    moveToCard(currentIndex - 1, true)
            } else if (event.key === Qt.Key_PageDown)
                moveToCard(Math.min(count - 1, currentIndex + 1), false)
            else if (event.key === Qt.Key_PageUp)
                moveToCard(Math.max(0, currentIndex - 1), false)
            else if (event.key === Qt.Key_Home)
                moveToCard(0, false)
            else if (event.key === Qt.Key_End)
                moveToCard(count - 1, true)
            else
                event.accepted = false
        }

        delegate: DuplicateCard {
            width: ListView.view.width - page.sideMargin
            screen: page.screen
            isCurrent: ListView.isCurrentItem
            onPressed: list.currentIndex = index
            onMenuRequested: (row, file, at) => menu.openFor(this, row, file, at)
        }
    }
    KarvelloMenu {
        id: menu

        property int group: -1
        property string groupID
        property int file: -1

        function openFor(card: DuplicateCard, row: Item, copy: int, at: point) {
            group = card.index
            groupID = card.groupID
            file = copy
            accessibleName = card.files[copy].name
            openAt(row, at)
        }

        KarvelloMenuItem {
            iconName: "folder"
            text: page.screen.revealText
            onTriggered: page.screen.reveal(menu.group, menu.groupID, menu.file)
        }
    }
}
