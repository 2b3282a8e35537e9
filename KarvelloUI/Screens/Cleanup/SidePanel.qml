import QtQuick
import QtQuick.Layouts
import Karvello.Design

// A list that is looked up beside the review, in its place: what was skipped, what is hidden. Escape closes it.
Rectangle {
    id: control

    required property string title
    property string count
    property string note
    // With a name, there is a button that closes it.
    property string closeName
    property string actionText
    property bool canAct: true
    property alias model: list.model
    property alias delegate: list.delegate
    property alias listCount: list.count
    property string emptyText

    signal closeRequested()
    signal actionRequested()

    function takeFocus() {
        if (list.count > 0)
            list.moveTo(list.currentIndex)
        else
            list.forceActiveFocus(Qt.ShortcutFocusReason)
    }

    implicitHeight: head.implicitHeight + 2 * KarvelloDesign.spacing12 + 3
        + (list.count === 0 ? 160 : Math.min(Math.ceil(list.contentHeight), 160))
    radius: KarvelloDesign.cardRadius
    color: KarvelloDesign.elevated1
    border.color: KarvelloDesign.line
    Accessible.role: Accessible.Grouping
    Accessible.name: KarvelloDesign.spoken([title, count])
    Keys.onEscapePressed: event => {
        event.accepted = closeName !== ""
        if (event.accepted)
            closeRequested()
    }

    RowLayout {
        id: head
        x: KarvelloDesign.spacing20
        y: KarvelloDesign.spacing12
        width: parent.width - 2 * x
        spacing: KarvelloDesign.spacing12

        ColumnLayout {
            spacing: 0
            RowLayout {
                spacing: KarvelloDesign.spacing12
                KarvelloText {
                    text: control.title
                    emphasis: KarvelloText.Strong
                    color: KarvelloDesign.ink
                    Accessible.role: Accessible.Heading
                }
                KarvelloText {
                    Layout.fillWidth: true
                    text: control.count
                    textStyle: KarvelloDesign.small
                    color: KarvelloDesign.ink3
                }
            }
            KarvelloText {
                Layout.fillWidth: true
                visible: text !== ""
                text: control.note
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                wrapMode: Text.Wrap
            }
        }
        KarvelloButton {
            visible: text !== ""
            size: KarvelloButton.Small
            text: control.actionText
            enabled: control.canAct
            onClicked: control.actionRequested()
        }
        KarvelloButton {
            visible: control.closeName !== ""
            kind: KarvelloButton.Quiet
            size: KarvelloButton.Small
            iconName: "close"
            accessibleName: control.closeName
            onClicked: control.closeRequested()
        }
    }
    Rectangle {
        id: rule
        y: head.y + head.height + KarvelloDesign.spacing12
        width: parent.width
        height: 1
        color: KarvelloDesign.line
    }
    KarvelloRows {
        id: list
        objectName: "panelList"
        anchors.top: rule.bottom
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 1
        activeFocusOnTab: count === 0
        accessibleName: control.title
        // The place stays when its row goes.
        onCountChanged: {
            if (currentIndex < 0 && count > 0)
                currentIndex = 0
            if (activeFocus && count > 0)
                moveTo(currentIndex)
        }

        KarvelloText {
            anchors.centerIn: parent
            width: Math.min(implicitWidth, parent.width - 2 * KarvelloDesign.spacing20)
            visible: list.count === 0
            text: control.emptyText
            color: KarvelloDesign.ink3
            wrapMode: Text.Wrap
        }
    }
    FocusRing {
        isShown: list.activeFocus && list.count === 0
        distance: 1
        radius: KarvelloDesign.cardRadius
    }
}
