import QtQuick
import QtQuick.Layouts
import Karvello.Design

// One build or dependency folder. It is for reading: what it is, how old, how large.
Item {
    id: control

    required property var entry

    implicitHeight: Math.max(52, Math.ceil(row.implicitHeight) + 2 * KarvelloDesign.spacing8)

    Accessible.role: Accessible.ListItem
    Accessible.name: KarvelloDesign.spoken([entry.name, entry.size, entry.path])
    Accessible.description: KarvelloDesign.spoken([entry.detail, entry.note])

    Rectangle {
        width: parent.width
        height: 1
        color: KarvelloDesign.lineSoft
    }
    RowLayout {
        id: row
        y: KarvelloDesign.spacing8
        width: parent.width
        spacing: KarvelloDesign.spacing12

        IconTile {
            Layout.alignment: Qt.AlignTop
            name: "folder"
        }
        ColumnLayout {
            spacing: 0

            RowLayout {
                spacing: KarvelloDesign.spacing8
                KarvelloText {
                    Layout.fillWidth: true
                    Layout.maximumWidth: Math.ceil(implicitWidth)
                    text: control.entry.name
                    emphasis: KarvelloText.Medium
                    color: KarvelloDesign.ink
                    Accessible.ignored: true
                }
                KarvelloText {
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    Layout.alignment: Qt.AlignBaseline
                    text: control.entry.path
                    textStyle: KarvelloDesign.small
                    color: KarvelloDesign.ink3
                    elide: Text.ElideMiddle
                    Accessible.ignored: true
                }
            }
            KarvelloText {
                Layout.fillWidth: true
                text: control.entry.detail
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            KarvelloText {
                Layout.fillWidth: true
                text: control.entry.note
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink4
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
        KarvelloText {
            Layout.alignment: Qt.AlignTop
            text: control.entry.size
            emphasis: KarvelloText.Medium
            color: KarvelloDesign.ink
            horizontalAlignment: Text.AlignRight
            Accessible.ignored: true
        }
    }
}
