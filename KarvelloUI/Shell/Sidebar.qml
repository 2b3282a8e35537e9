// Parts of this file know the ids around them. The pragma that would say so breaks loaders and inline parts in Qt 6.4.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design
import Karvello.Shell

// The sections in three groups over the state of the disk. One stop for Tab; the arrows move the selection. Short windows
// and large texts let the sections scroll, the foot stays.
Rectangle {
    id: control

    required property SidebarModel sidebar

    // As wide as the longest title needs, within what the page can spare.
    implicitWidth: Math.max(224, Math.min(264, Math.ceil(widest) + 2 * KarvelloDesign.spacing12))
    color: KarvelloDesign.sidebar

    readonly property real widest: Math.max(primary.implicitWidth, advanced.implicitWidth, support.implicitWidth)

    function focusSelected(reason) {
        for (const group of [primary, advanced, support]) {
            for (let place = 0; place < group.items.count; ++place) {
                const item = group.items.itemAt(place)
                if (item && item.isSelected)
                    item.forceActiveFocus(reason)
            }
        }
    }

    Accessible.role: Accessible.Pane
    Accessible.name: "Karvello"

    component Group: ColumnLayout {
        id: group

        property string title
        property var sections: []
        property alias items: repeater

        Layout.fillWidth: true
        spacing: KarvelloDesign.spacing4
        Accessible.role: Accessible.List
        Accessible.name: title

        Repeater {
            id: repeater
            // By their number: the counts change with each step of a clean, and new items each time would take away the focus
            // and leave the layout with ones that are gone.
            model: group.sections.length
            delegate: KarvelloSidebarItem {
                required property int index
                readonly property var modelData: group.sections[index]

                Layout.fillWidth: true
                objectName: modelData.section
                text: modelData.title
                iconName: modelData.iconName
                count: modelData.count
                isSelected: control.sidebar.selectedSection === modelData.section
                isStop: control.sidebar.stopSection === modelData.section
                onClicked: control.sidebar.select(modelData.section)
                onMoveRequested: step => {
                    control.sidebar.selectStep(step)
                    control.focusSelected(Qt.TabFocusReason)
                }
            }
        }
    }

    RowLayout {
        id: brand
        x: KarvelloDesign.spacing20
        height: 64
        spacing: KarvelloDesign.spacing12
        KarvelloMark {}
        KarvelloText {
            text: "Karvello"
            textStyle: KarvelloDesign.heading
            color: KarvelloDesign.ink
        }
    }
    Flickable {
        id: flickable

        anchors.top: brand.bottom
        anchors.bottom: foot.top
        x: KarvelloDesign.spacing12
        width: parent.width - 2 * KarvelloDesign.spacing12
        contentWidth: width
        contentHeight: groups.implicitHeight
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        // Beside the counts, in the margin.
        T.ScrollBar.vertical: KarvelloScrollBar {
            parent: control
            x: control.width - width - 1
            y: flickable.y
            height: flickable.height
        }

        Connections {
            target: control.Window.window
            function onActiveFocusItemChanged() {
                const item = control.Window.activeFocusItem
                if (!(item instanceof KarvelloSidebarItem))
                    return
                const top = item.mapToItem(groups, 0, 0).y
                flickable.contentY = Math.max(0, Math.min(top, Math.max(flickable.contentY, top + item.height - flickable.height)))
            }
        }

        ColumnLayout {
            id: groups
            width: flickable.width
            spacing: KarvelloDesign.spacing4

            Group {
                id: primary
                title: control.sidebar.primaryTitle
                sections: control.sidebar.primaryItems
            }
            KarvelloSidebarGroup {
                Layout.fillWidth: true
                Layout.topMargin: KarvelloDesign.spacing12
                text: control.sidebar.advancedTitle
                isCollapsible: true
                isOpen: control.sidebar.isAdvancedShown
                isHeldOpen: control.sidebar.isAdvancedHeld
                openText: control.sidebar.advancedText
                onOpenRequested: isOpen => control.sidebar.setAdvancedShown(isOpen)
            }
            Group {
                id: advanced
                visible: control.sidebar.isAdvancedShown
                title: control.sidebar.advancedTitle
                sections: control.sidebar.advancedItems
            }
            KarvelloSidebarGroup {
                Layout.fillWidth: true
                Layout.topMargin: KarvelloDesign.spacing12
                text: control.sidebar.supportTitle
            }
            Group {
                id: support
                title: control.sidebar.supportTitle
                sections: control.sidebar.supportItems
            }
        }
    }
    KarvelloStorageFoot {
        id: foot
        anchors.bottom: parent.bottom
        x: KarvelloDesign.spacing12
        width: parent.width - 2 * KarvelloDesign.spacing12
        title: control.sidebar.storageTitle
        freeText: control.sidebar.freeText
        usedText: control.sidebar.usedText
        usedFraction: control.sidebar.usedFraction
    }
    Rectangle {
        anchors.right: parent.right
        width: 1
        height: parent.height
        color: KarvelloDesign.line
    }
}
