import QtQuick
import QtQuick.Layouts
import Karvello.Design

// A sheet whose rows go from edge to edge, with a head above and, where there is one, a band below.
Rectangle {
    id: control

    default property alias content: body.data
    property alias headItems: head.data
    property alias footItems: foot.data
    // At the right below the foot's items.
    property alias footActions: footActionRow.data
    property string title
    property string subtitle
    property string note
    property bool hasFoot: false

    implicitWidth: 480
    implicitHeight: Math.ceil(column.implicitHeight) + 2
    radius: KarvelloDesign.cardRadius
    color: KarvelloDesign.elevated1
    border.color: KarvelloDesign.line

    Accessible.role: Accessible.Grouping
    Accessible.name: title

    ColumnLayout {
        id: column
        x: 1
        y: 1
        width: parent.width - 2
        spacing: 0

        RowLayout {
            Layout.margins: KarvelloDesign.spacing20
            spacing: KarvelloDesign.spacing12

            ColumnLayout {
                spacing: 2
                KarvelloText {
                    Layout.fillWidth: true
                    text: control.title
                    textStyle: KarvelloDesign.heading
                    color: KarvelloDesign.ink
                    wrapMode: Text.Wrap
                    Accessible.role: Accessible.Heading
                }
                KarvelloText {
                    Layout.fillWidth: true
                    visible: text !== ""
                    text: control.subtitle
                    textStyle: KarvelloDesign.small
                    color: KarvelloDesign.ink3
                    wrapMode: Text.Wrap
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
            RowLayout {
                id: head
                Layout.alignment: Qt.AlignTop
                spacing: KarvelloDesign.spacing8
            }
        }
        Rectangle {
            Layout.fillWidth: true
            implicitHeight: 1
            color: KarvelloDesign.line
        }
        ColumnLayout {
            id: body
            spacing: 0
        }
        // A band with the card's lower corners.
        Rectangle {
            Layout.fillWidth: true
            visible: control.hasFoot
            implicitHeight: Math.ceil(footColumn.implicitHeight) + 2 * KarvelloDesign.spacing12
            radius: KarvelloDesign.cardRadius - 1
            color: KarvelloDesign.elevated2

            Rectangle {
                width: parent.width
                height: parent.radius
                color: parent.color
            }
            ColumnLayout {
                id: footColumn
                x: KarvelloDesign.spacing16
                y: KarvelloDesign.spacing12
                width: parent.width - 2 * x
                spacing: KarvelloDesign.spacing8

                RowLayout {
                    id: foot
                    spacing: KarvelloDesign.spacing12
                }
                RowLayout {
                    id: footActionRow
                    Layout.alignment: Qt.AlignRight
                    Layout.fillWidth: false
                    spacing: KarvelloDesign.spacing8
                }
            }
        }
    }
}
