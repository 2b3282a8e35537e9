pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Insights

// Large files, downloads, or what the installer review found.
InsightPage {
    id: page

    required property InsightListScreenModel screen

    insights: screen

    footer: InsightFooter {
        objectName: "footer"
        Layout.fillWidth: true
        visible: page.screen.hasFooter
        hasKeys: page.visible && page.screen.hasFooter
        sideMargin: page.sideMargin
        review: page.screen
    }

    Rectangle {
        Layout.fillWidth: true
        Layout.fillHeight: true
        // The page scrolls only when not even this has room.
        implicitHeight: 200
        radius: KarvelloDesign.cardRadius
        color: KarvelloDesign.elevated1
        border.color: KarvelloDesign.line

        KarvelloRows {
            id: list
            objectName: "rows"
            anchors.fill: parent
            anchors.margins: 1
            model: page.screen.rows
            accessibleName: page.screen.title

            delegate: InsightRow {
                width: ListView.view.width
                screen: page.screen
                isCurrent: ListView.isCurrentItem
                onClicked: list.currentIndex = index
                onMenuRequested: at => menu.openFor(this, at)
            }
        }
    }
    KarvelloMenu {
        id: menu

        property int key: -1

        function openFor(row: InsightRow, at: point) {
            key = row.key
            accessibleName = row.name
            openAt(row, at)
        }

        KarvelloMenuItem {
            iconName: "folder"
            text: page.screen.revealText
            onTriggered: page.screen.reveal(menu.key)
        }
        KarvelloMenuItem {
            iconName: "info"
            text: page.screen.whyText
            onTriggered: page.screen.setOpen(menu.key, true)
        }
    }
}
