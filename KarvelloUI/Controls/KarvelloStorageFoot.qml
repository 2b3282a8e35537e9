import QtQuick
import QtQuick.Layouts
import Karvello.Design

// The foot of the sidebar: what is free, and how full the disk is.
Item {
    id: control

    property string title
    property string freeText
    property string usedText
    // Between 0 and 1; below 0 it is not known.
    property real usedFraction: -1

    implicitWidth: 200
    implicitHeight: Math.ceil(column.implicitHeight) + 2 * KarvelloDesign.spacing12

    Accessible.role: Accessible.Indicator
    Accessible.name: KarvelloDesign.spoken([title, freeText, usedText])

    Rectangle {
        width: parent.width
        height: 1
        color: KarvelloDesign.line
    }
    ColumnLayout {
        id: column
        x: KarvelloDesign.spacing8
        y: KarvelloDesign.spacing12
        width: parent.width - 2 * KarvelloDesign.spacing8
        spacing: KarvelloDesign.spacing4

        // Placed by hand: a layout would keep the width of another figure.
        Item {
            Layout.fillWidth: true
            implicitHeight: free.implicitHeight

            KarvelloText {
                width: Math.max(0, free.x - KarvelloDesign.spacing8)
                anchors.baseline: free.baseline
                text: control.title
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                Accessible.ignored: true
            }
            KarvelloText {
                id: free
                anchors.right: parent.right
                width: Math.min(Math.ceil(implicitWidth), parent.width)
                text: control.freeText
                emphasis: KarvelloText.Strong
                color: KarvelloDesign.ink
                Accessible.ignored: true
            }
        }
        KarvelloProgressBar {
            Layout.fillWidth: true
            Layout.topMargin: KarvelloDesign.spacing4
            Layout.bottomMargin: KarvelloDesign.spacing4
            visible: control.usedFraction >= 0
            thickness: 6
            tint: KarvelloDesign.lineStrong
            value: Math.max(0, Math.min(1, control.usedFraction))
            Accessible.ignored: true
        }
        KarvelloText {
            Layout.fillWidth: true
            visible: text !== ""
            text: control.usedText
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            Accessible.ignored: true
        }
    }
}
