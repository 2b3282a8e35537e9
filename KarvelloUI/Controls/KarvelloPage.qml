import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design

// The frame of a screen: a head with title, one line and actions, the content, and a footer that stays. The content fills the
// room that is left and scrolls when it needs more, so a list in it takes `Layout.fillHeight` and scrolls by itself.
FocusScope {
    id: control

    default property alias content: body.data
    // Buttons at the right of the head.
    property alias actions: actionRow.data
    // What stays below the content, such as a KarvelloFooter. It is as wide as the page.
    property alias footer: footerSlot.data
    property string title
    property string subtitle
    property int contentMaximumWidth: 1240
    // Lists and maps use a wide window to its edges; everything else stays readable in its middle.
    property bool usesFullWidth: false
    // What takes the keyboard when that which had it cannot have it any more, the best first. Else it is the nearest.
    property alias landings: keyboard.landings
    // Room at the head's right end for the window's own buttons.
    property int trailingSpace: 0
    // The head moves a window that has no title bar.
    property bool movesWindow: true

    readonly property bool isNarrow: width < 1000
    readonly property int pageMargin: isNarrow ? KarvelloDesign.spacing24 : KarvelloDesign.spacing32
    readonly property int sideMargin: usesFullWidth ? pageMargin
        : Math.max(pageMargin, Math.round((width - contentMaximumWidth) / 2))
    readonly property real contentWidth: Math.max(0, width - 2 * sideMargin)

    function scrollToTop() {
        flickable.contentY = 0
    }

    // Scrolls so far that the item, which is somewhere in the content, can be seen.
    function ensureVisible(item: Item) {
        const top = item.mapToItem(body, 0, 0).y - KarvelloDesign.spacing16
        const bottom = top + item.height + 2 * KarvelloDesign.spacing16
        if (top < flickable.contentY || bottom - top > flickable.height)
            flickable.contentY = Math.max(0, Math.min(top, flickable.contentHeight - flickable.height))
        else if (bottom > flickable.contentY + flickable.height)
            flickable.contentY = Math.min(bottom, flickable.contentHeight) - flickable.height
    }

    function isInContent(item: Item): bool {
        let ancestor = item
        while (ancestor !== null && ancestor !== body)
            ancestor = ancestor.parent
        return ancestor === body
    }

    function scrollBy(distance: real) {
        flickable.contentY = Math.max(0, Math.min(flickable.contentY + distance, flickable.contentHeight - flickable.height))
    }

    Accessible.role: Accessible.Pane
    Accessible.name: title

    Keys.onPressed: event => {
        const steps = {
            [Qt.Key_PageDown]: flickable.height - KarvelloDesign.spacing32,
            [Qt.Key_PageUp]: KarvelloDesign.spacing32 - flickable.height,
            [Qt.Key_Home]: -flickable.contentHeight,
            [Qt.Key_End]: flickable.contentHeight
        }
        event.accepted = flickable.interactive && event.key in steps
        if (event.accepted)
            control.scrollBy(steps[event.key])
    }

    Connections {
        target: control.Window.window
        function onActiveFocusItemChanged() {
            const item = control.Window.activeFocusItem
            keyboard.follow(item)
            if (item && control.isInContent(item))
                control.ensureVisible(item)
        }
    }
    KarvelloPageKeyboard {
        id: keyboard
        page: control
    }

    Item {
        id: header

        width: parent.width
        height: Math.max(76, Math.ceil(headRow.implicitHeight) + 2 * KarvelloDesign.spacing12)

        DragHandler {
            target: null
            enabled: control.movesWindow
            onActiveChanged: {
                if (active)
                    control.Window.window.startSystemMove()
            }
        }
        TapHandler {
            enabled: control.movesWindow
            gesturePolicy: TapHandler.DragThreshold
            onDoubleTapped: {
                const window = control.Window.window
                window.visibility = window.visibility === Window.Maximized ? Window.Windowed : Window.Maximized
            }
        }
        RowLayout {
            id: headRow
            x: control.sideMargin
            width: control.width - x - Math.max(control.sideMargin, control.trailingSpace)
            anchors.verticalCenter: parent.verticalCenter
            spacing: KarvelloDesign.spacing16

            ColumnLayout {
                Layout.fillWidth: true
                spacing: 2

                KarvelloText {
                    Layout.fillWidth: true
                    text: control.title
                    textStyle: KarvelloDesign.title
                    color: KarvelloDesign.ink
                    Accessible.role: Accessible.Heading
                }
                KarvelloText {
                    Layout.fillWidth: true
                    visible: text !== ""
                    text: control.subtitle
                    color: KarvelloDesign.ink3
                }
            }
            RowLayout {
                id: actionRow
                Layout.fillWidth: false
                spacing: KarvelloDesign.spacing8
            }
        }
    }
    Flickable {
        id: flickable

        // What is first in the page has its mark of the focus around it.
        readonly property int ringRoom: KarvelloDesign.spacing4

        anchors.top: header.bottom
        anchors.topMargin: -ringRoom
        anchors.bottom: footerSlot.top
        width: parent.width
        contentWidth: width
        contentHeight: ringRoom + body.height + KarvelloDesign.spacing24
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        T.ScrollBar.vertical: KarvelloScrollBar {}

        ColumnLayout {
            id: body
            x: control.sideMargin
            y: flickable.ringRoom
            width: control.contentWidth
            height: Math.max(implicitHeight, flickable.height - flickable.ringRoom - KarvelloDesign.spacing24)
            spacing: KarvelloDesign.spacing16
        }
    }
    ColumnLayout {
        id: footerSlot
        anchors.bottom: parent.bottom
        width: parent.width
        spacing: 0
    }
}
