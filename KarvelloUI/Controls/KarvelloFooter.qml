pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Karvello.Design

// Stays below a review: what is selected, what will happen to it, and the button that asks for it. When there is no room the
// pills go first, then "Select All" moves into a menu; the primary keeps its words. It holds no state.
Rectangle {
    id: control

    // "14 selected · 7.62 GB · includes 2 hidden items", or that nothing is.
    property string title
    // Where the selected items go.
    property string text
    // List of { text, kind }.
    property var pills: []
    property int checkState: Qt.Unchecked
    property bool showsCheckBox: true
    property string checkBoxName: selectAllText
    property bool canToggleAll: canSelectAll || canClear
    property string clearText
    property bool canClear: true
    property string selectAllText
    property bool canSelectAll: true
    property string primaryText
    property string primaryIconName: "trash"
    property bool canAct: false
    property string primaryDisabledReason
    property bool isBusy: false
    // What the menu button is called that takes "Select All".
    property string moreName: selectAllText
    // As wide as that of the page.
    property int sideMargin: width < 1000 ? KarvelloDesign.spacing24 : KarvelloDesign.spacing32

    readonly property real boxWidth: showsCheckBox ? 2 * Math.round(8 * KarvelloDesign.textFactor) + KarvelloDesign.spacing12 : 0
    readonly property real room: width - 2 * sideMargin - boxWidth - KarvelloDesign.spacing24
    readonly property real buttonsWidth: (clearText === "" ? 0 : clear.implicitWidth + buttons.spacing) + primary.implicitWidth
    readonly property real selectAllWidth: selectAllText === "" ? 0 : selectAll.implicitWidth + buttons.spacing
    // The sentence has to be readable as well, in two lines.
    readonly property real textWidth: Math.max(heading.implicitWidth,
        Math.min(sentence.implicitWidth, Math.round(240 * KarvelloDesign.textFactor)))
    readonly property bool isFolded: selectAllText !== "" && textWidth + buttonsWidth + selectAllWidth > room
    // Then it stands in the menu too.
    readonly property bool isClearFolded: isFolded && clearText !== ""
        && heading.implicitWidth + buttonsWidth + more.implicitWidth + buttons.spacing > room
    readonly property bool hasRoomForPills: KarvelloDesign.textFactor < 1.25
        && heading.implicitWidth + pillRow.implicitWidth + KarvelloDesign.spacing8 + buttonsWidth + selectAllWidth <= room

    signal clearRequested()
    signal selectAllRequested()
    signal toggleAllRequested()
    signal primaryRequested()

    implicitWidth: 720
    implicitHeight: Math.max(72, Math.ceil(Math.max(row.implicitHeight, buttons.implicitHeight)) + 2 * KarvelloDesign.spacing12)
    color: KarvelloDesign.elevated1

    Accessible.role: Accessible.ToolBar
    Accessible.name: KarvelloDesign.spoken([title, ...Array.from(pills, pill => String(pill.text)), text])

    Rectangle {
        width: parent.width
        height: 1
        color: KarvelloDesign.line
    }
    RowLayout {
        id: row
        x: control.sideMargin
        width: buttons.x - x - KarvelloDesign.spacing24
        anchors.verticalCenter: parent.verticalCenter
        spacing: KarvelloDesign.spacing4

        KarvelloCheckBox {
            id: box
            Layout.leftMargin: -padding
            visible: control.showsCheckBox
            enabled: control.canToggleAll && !control.isBusy
            checkState: control.checkState
            isAsking: true
            accessibleName: control.checkBoxName
            onClicked: control.toggleAllRequested()
        }
        ColumnLayout {
            spacing: 0

            RowLayout {
                spacing: KarvelloDesign.spacing8
                KarvelloText {
                    id: heading
                    Layout.fillWidth: true
                    Layout.maximumWidth: Math.ceil(implicitWidth)
                    text: control.title
                    textStyle: KarvelloDesign.heading
                    color: KarvelloDesign.ink
                    Accessible.role: Accessible.Heading
                }
                Item {
                    implicitWidth: control.hasRoomForPills ? pillRow.implicitWidth : 0
                    implicitHeight: control.hasRoomForPills ? pillRow.implicitHeight : 0

                    Row {
                        id: pillRow
                        visible: control.hasRoomForPills
                        spacing: KarvelloDesign.spacing8
                        Repeater {
                            model: control.pills
                            KarvelloPill {
                                required property var modelData
                                text: modelData.text
                                kind: modelData.kind
                            }
                        }
                    }
                }
                Item { Layout.fillWidth: true }
            }
            KarvelloText {
                id: sentence
                Layout.fillWidth: true
                visible: text !== ""
                text: control.text
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                wrapMode: Text.Wrap
                maximumLineCount: 2
            }
        }
    }
    // No layout: one that is about to be resized misses what appears in it.
    Row {
        id: buttons
        anchors.right: parent.right
        anchors.rightMargin: control.sideMargin
        anchors.verticalCenter: parent.verticalCenter
        spacing: KarvelloDesign.spacing12

        KarvelloButton {
            id: clear
            visible: text !== "" && !control.isClearFolded
            kind: KarvelloButton.Quiet
            text: control.clearText
            enabled: control.canClear && !control.isBusy
            onClicked: control.clearRequested()
        }
        KarvelloButton {
            id: selectAll
            visible: text !== "" && !control.isFolded
            text: control.selectAllText
            enabled: control.canSelectAll && !control.isBusy
            onClicked: control.selectAllRequested()
        }
        KarvelloButton {
            id: more
            visible: control.isFolded
            iconName: "more"
            accessibleName: control.moreName
            enabled: (control.canSelectAll || (control.isClearFolded && control.canClear)) && !control.isBusy
            onClicked: menu.openBelow(more)

            KarvelloMenu {
                id: menu
                accessibleName: control.moreName
                KarvelloMenuItem {
                    text: control.selectAllText
                    enabled: control.canSelectAll
                    onTriggered: control.selectAllRequested()
                }
                KarvelloMenuItem {
                    visible: control.isClearFolded
                    height: visible ? implicitHeight : 0
                    text: control.clearText
                    enabled: control.canClear
                    onTriggered: control.clearRequested()
                }
            }
        }
        KarvelloButton {
            id: primary
            objectName: "primary"
            kind: KarvelloButton.Primary
            text: control.primaryText
            iconName: control.primaryIconName
            enabled: control.canAct && !control.isBusy
            disabledReason: control.primaryDisabledReason
            isBusy: control.isBusy
            onClicked: control.primaryRequested()
        }
    }
}
