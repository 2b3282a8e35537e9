import QtQuick
import QtQuick.Layouts
import Karvello.Design

// One step: its number on the line, what to do, and the paths that it is about.
Item {
    id: control

    required property var step
    required property bool isLast
    required property string copyText
    readonly property int badgeSize: 2 * Math.round(12 * KarvelloDesign.textFactor)

    signal copyRequested()

    implicitHeight: Math.ceil(column.implicitHeight) + KarvelloDesign.spacing16

    Accessible.role: Accessible.Grouping
    Accessible.name: KarvelloDesign.spoken([step.label, step.title])
    Accessible.description: step.text

    Rectangle {
        x: Math.round(control.badgeSize / 2)
        y: control.badgeSize + KarvelloDesign.spacing4
        width: 1
        height: parent.height - y - KarvelloDesign.spacing4
        visible: !control.isLast
        color: KarvelloDesign.line
    }
    Rectangle {
        width: control.badgeSize
        height: width
        radius: width / 2
        color: KarvelloDesign.elevated1
        border.color: KarvelloDesign.lineStrong

        KarvelloText {
            anchors.centerIn: parent
            text: control.step.number
            textStyle: KarvelloDesign.label
            color: KarvelloDesign.ink2
            Accessible.ignored: true
        }
    }
    ColumnLayout {
        id: column
        x: control.badgeSize + KarvelloDesign.spacing12
        width: parent.width - x
        spacing: KarvelloDesign.spacing4

        KarvelloText {
            Layout.fillWidth: true
            Layout.topMargin: Math.max(0, Math.round((control.badgeSize - implicitHeight) / 2))
            text: control.step.title
            emphasis: KarvelloText.Medium
            color: KarvelloDesign.ink
            wrapMode: Text.Wrap
        }
        KarvelloPill {
            Layout.maximumWidth: column.width
            visible: text !== ""
            kind: KarvelloDesign.CautionPill
            text: control.step.diagnosis
        }
        KarvelloText {
            Layout.fillWidth: true
            text: control.step.text
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            wrapMode: Text.Wrap
        }
        Rectangle {
            Layout.fillWidth: true
            Layout.topMargin: KarvelloDesign.spacing4
            visible: control.step.samples.length > 0
            implicitHeight: Math.ceil(samples.implicitHeight) + 2 * KarvelloDesign.spacing8
            radius: KarvelloDesign.controlRadius
            color: KarvelloDesign.elevated2
            border.color: KarvelloDesign.line

            Column {
                id: samples
                x: KarvelloDesign.spacing12
                y: KarvelloDesign.spacing8
                width: parent.width - 2 * KarvelloDesign.spacing12

                RowLayout {
                    width: samples.width
                    spacing: KarvelloDesign.spacing8
                    KarvelloText {
                        Layout.fillWidth: true
                        text: control.step.samplesTitle
                        textStyle: KarvelloDesign.label
                        color: KarvelloDesign.ink3
                    }
                    KarvelloButton {
                        objectName: "copyPaths"
                        Layout.rightMargin: -horizontalPadding
                        kind: KarvelloButton.Quiet
                        size: KarvelloButton.Small
                        text: control.copyText
                        Accessible.description: control.step.diagnosis
                        onClicked: control.copyRequested()
                    }
                }
                Repeater {
                    model: control.step.samples
                    KarvelloText {
                        required property string modelData
                        width: parent ? parent.width : 0
                        text: modelData
                        textStyle: KarvelloDesign.small
                        color: KarvelloDesign.ink2
                        elide: Text.ElideMiddle
                    }
                }
            }
        }
    }
}
