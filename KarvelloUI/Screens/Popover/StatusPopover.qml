import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design
import Karvello.Screens.Popover

// The popover of the status item. Head and foot stay; what lies between scrolls when it has to: the triage alone as long as
// that leaves it some room, else with the figures above it.
FocusScope {
    id: control

    required property StatusPopoverModel popover

    readonly property int padding: KarvelloDesign.spacing16
    readonly property real bodyHeight: height - head.height - foot.height
    readonly property bool isTight:
        bodyHeight - overview.implicitHeight - 2 * padding < Math.round(180 * KarvelloDesign.textFactor)

    function scrollBy(distance: real) {
        flickable.contentY = Math.max(0, Math.min(flickable.contentY + distance, flickable.contentHeight - flickable.height))
    }
    function ensureVisible(item: Item) {
        const top = item.mapToItem(flickable.contentItem, 0, 0).y - KarvelloDesign.spacing8
        const bottom = top + item.height + 2 * KarvelloDesign.spacing8
        if (top < flickable.contentY)
            flickable.contentY = Math.max(0, top)
        else if (bottom > flickable.contentY + flickable.height)
            flickable.contentY = Math.min(bottom, flickable.contentHeight) - flickable.height
    }

    implicitWidth: 360
    implicitHeight: 540
    focus: true

    Accessible.role: Accessible.Pane
    Accessible.name: popover.brand

    Keys.onPressed: event => {
        const steps = {
            [Qt.Key_Down]: KarvelloDesign.spacing32,
            [Qt.Key_Up]: -KarvelloDesign.spacing32,
            [Qt.Key_PageDown]: flickable.height - KarvelloDesign.spacing32,
            [Qt.Key_PageUp]: KarvelloDesign.spacing32 - flickable.height,
            [Qt.Key_Home]: -flickable.contentHeight,
            [Qt.Key_End]: flickable.contentHeight
        }
        event.accepted = true
        if (event.key === Qt.Key_Escape)
            control.popover.close()
        else if (event.key in steps && flickable.interactive)
            control.scrollBy(steps[event.key])
        else
            event.accepted = false
    }

    Rectangle {
        anchors.fill: parent
        color: KarvelloDesign.elevated1
    }
    Item {
        id: head
        width: parent.width
        height: Math.max(52, Math.ceil(headRow.implicitHeight) + 2 * KarvelloDesign.spacing12)

        RowLayout {
            id: headRow
            x: control.padding
            width: parent.width - 2 * control.padding
            anchors.verticalCenter: parent.verticalCenter
            spacing: KarvelloDesign.spacing8

            KarvelloMark { size: 20 }
            KarvelloText {
                text: control.popover.brand
                textStyle: KarvelloDesign.heading
                color: KarvelloDesign.ink
                Accessible.role: Accessible.Heading
            }
            KarvelloText {
                objectName: "updated"
                Layout.fillWidth: true
                text: control.popover.updatedText
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                horizontalAlignment: Text.AlignRight
            }
        }
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: KarvelloDesign.line
        }
    }
    Item {
        id: fixed
        anchors.top: head.bottom
        width: parent.width
        height: control.isTight ? 0 : overview.implicitHeight + 2 * control.padding

        Rectangle {
            anchors.bottom: parent.bottom
            visible: !control.isTight
            width: parent.width
            height: 1
            color: KarvelloDesign.line
        }
    }
    PopoverOverview {
        id: overview
        parent: control.isTight ? flickable.contentItem : fixed
        x: control.padding
        y: control.padding
        width: control.width - 2 * control.padding
        popover: control.popover
    }
    Flickable {
        id: flickable
        objectName: "scroll"
        anchors.top: fixed.bottom
        anchors.bottom: foot.top
        width: parent.width
        contentWidth: width
        contentHeight: triage.y + triage.implicitHeight + control.padding
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        T.ScrollBar.vertical: KarvelloScrollBar {}

        TriagePanel {
            id: triage
            x: control.padding
            y: control.padding + (control.isTight ? overview.implicitHeight + 2 * control.padding : 0)
            width: control.width - 2 * control.padding
            popover: control.popover
            onRowReached: row => control.ensureVisible(row)
        }
    }
    Item {
        id: foot
        anchors.bottom: parent.bottom
        width: parent.width
        height: Math.ceil(footRow.implicitHeight) + 2 * KarvelloDesign.spacing12

        Rectangle {
            width: parent.width
            height: 1
            color: KarvelloDesign.line
        }
        // Long words stand one below the other.
        GridLayout {
            id: footRow
            x: control.padding
            y: KarvelloDesign.spacing12
            width: parent.width - 2 * control.padding
            columns: dashboard.implicitWidth + quit.implicitWidth + columnSpacing > width ? 1 : 2
            columnSpacing: KarvelloDesign.spacing12
            rowSpacing: KarvelloDesign.spacing4

            KarvelloButton {
                id: dashboard
                objectName: "openDashboard"
                Layout.fillWidth: true
                kind: KarvelloButton.Tonal
                text: control.popover.openDashboardTitle
                focus: true
                onClicked: control.popover.openDashboard()
            }
            KarvelloButton {
                id: quit
                objectName: "quit"
                Layout.alignment: Qt.AlignHCenter
                kind: KarvelloButton.Quiet
                iconName: "quit"
                text: control.popover.quitTitle
                onClicked: control.popover.quit()
            }
        }
    }

    // The window has no frame of its own.
    Rectangle {
        anchors.fill: parent
        color: "transparent"
        border.color: KarvelloDesign.lineStrong
    }
}
