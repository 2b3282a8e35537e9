import QtQuick
import QtQuick.Layouts
import Karvello.Design

// A path, a line about it, and buttons at the right. The buttons of the current row alone are in the way of Tab.
FocusScope {
    id: control

    // A row that waits to be used again is only culled by its view: assistants would still read it and press it.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true

    default property alias buttons: buttonRow.data
    property string path
    property string note
    property string line
    // The line asks for something.
    property bool isCaution: false
    property string iconName
    readonly property bool isCurrent: ListView.isCurrentItem
    readonly property int buttonFocusPolicy: isCurrent ? Qt.StrongFocus : Qt.ClickFocus

    implicitHeight: Math.max(53, Math.ceil(row.implicitHeight) + 2 * KarvelloDesign.spacing8 + 1)

    Accessible.role: Accessible.ListItem
    Accessible.name: KarvelloDesign.spoken([path, note, line])

    onActiveFocusChanged: {
        if (activeFocus && !isCurrent)
            ListView.view.currentIndex = index
    }
    required property int index

    RowLayout {
        id: row
        x: KarvelloDesign.spacing20
        width: parent.width - 2 * KarvelloDesign.spacing20
        anchors.verticalCenter: parent.verticalCenter
        spacing: KarvelloDesign.spacing12

        IconTile {
            visible: name !== ""
            name: control.iconName
        }
        ColumnLayout {
            spacing: 0

            RowLayout {
                spacing: KarvelloDesign.spacing8
                KarvelloText {
                    Layout.fillWidth: true
                    Layout.maximumWidth: Math.ceil(implicitWidth)
                    text: control.path
                    emphasis: KarvelloText.Medium
                    color: KarvelloDesign.ink
                    elide: Text.ElideMiddle
                    Accessible.ignored: true
                }
                KarvelloText {
                    visible: text !== ""
                    text: control.note
                    textStyle: KarvelloDesign.small
                    color: KarvelloDesign.ink3
                    Accessible.ignored: true
                }
                Item { Layout.fillWidth: true }
            }
            KarvelloText {
                Layout.fillWidth: true
                text: control.line
                textStyle: KarvelloDesign.small
                color: control.isCaution ? KarvelloDesign.caution : KarvelloDesign.ink3
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
        RowLayout {
            id: buttonRow
            Layout.fillWidth: false
            spacing: KarvelloDesign.spacing4
        }
    }
    SettingsRule {
        anchors.bottom: parent.bottom
        width: parent.width
        visible: control.index < control.ListView.view.count - 1
    }
}
