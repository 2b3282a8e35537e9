import QtQuick
import QtQuick.Layouts
import Karvello.Design

// A heading with something at its right, and below it a sheet of rows.
Column {
    id: control

    default property alias rows: rows.data
    property alias headItem: head.data
    property string title

    spacing: KarvelloDesign.spacing8

    Accessible.role: Accessible.Grouping
    Accessible.name: title

    RowLayout {
        width: parent.width
        height: Math.max(Math.round(28 * KarvelloDesign.textFactor), implicitHeight)
        spacing: KarvelloDesign.spacing12

        KarvelloText {
            Layout.fillWidth: true
            text: control.title
            textStyle: KarvelloDesign.heading
            color: KarvelloDesign.ink
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
        }
        RowLayout {
            id: head
            Layout.fillWidth: false
            spacing: KarvelloDesign.spacing8
        }
    }
    Rectangle {
        width: parent.width
        height: Math.ceil(rows.implicitHeight) + 2
        radius: KarvelloDesign.cardRadius
        color: KarvelloDesign.elevated1
        border.color: KarvelloDesign.line

        ColumnLayout {
            id: rows
            x: 1
            y: 1
            width: parent.width - 2
            spacing: 0
        }
    }
}
