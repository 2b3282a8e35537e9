import QtQuick
import QtQuick.Layouts
import Karvello.Design

// A large chart with its figure at the left, or above it when the texts are large.
Rectangle {
    id: control

    required property var chart

    readonly property int padding: KarvelloDesign.spacing20
    readonly property bool isStacked: KarvelloDesign.textFactor >= 1.25
    readonly property int leastChartHeight: Math.round(140 * KarvelloDesign.textFactor)

    implicitWidth: 608
    implicitHeight: 2 * padding + Math.ceil(head.implicitHeight) + KarvelloDesign.spacing12
        + (isStacked ? Math.ceil(figures.implicitHeight) + KarvelloDesign.spacing12 + leastChartHeight
                     : Math.max(leastChartHeight, Math.ceil(figures.implicitHeight)))
    radius: KarvelloDesign.cardRadius
    color: KarvelloDesign.elevated1
    border.color: KarvelloDesign.line

    Accessible.role: Accessible.Indicator
    Accessible.name: KarvelloDesign.spoken([chart.title, chart.figure, chart.pillText, chart.firstLine, chart.secondLine])
    Accessible.description: KarvelloDesign.spoken([chart.note, chart.accessibleValue])

    RowLayout {
        id: head
        x: control.padding
        y: control.padding
        width: parent.width - 2 * control.padding
        spacing: KarvelloDesign.spacing8

        KarvelloText {
            Layout.fillWidth: true
            Layout.maximumWidth: Math.ceil(implicitWidth)
            text: control.chart.title
            textStyle: KarvelloDesign.heading
            color: KarvelloDesign.ink
            Accessible.ignored: true
        }
        KarvelloPill {
            visible: text !== ""
            text: control.chart.pillText
            kind: control.chart.pillKind
            Accessible.ignored: true
        }
        KarvelloText {
            Layout.fillWidth: true
            text: control.chart.note
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            horizontalAlignment: Text.AlignRight
            Accessible.ignored: true
        }
    }
    Column {
        id: figures
        x: control.padding
        y: control.isStacked ? head.y + head.height + KarvelloDesign.spacing12
            : control.height - control.padding - height - Math.ceil(KarvelloDesign.label.lineHeight)
        width: control.isStacked ? control.width - 2 * control.padding : Math.max(152, Math.round(control.width * 0.22))

        KarvelloText {
            width: parent.width
            text: control.chart.figure
            textStyle: KarvelloDesign.display
            color: KarvelloDesign.ink
            Accessible.ignored: true
        }
        KarvelloText {
            width: parent.width
            visible: text !== ""
            text: control.chart.firstLine
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        KarvelloText {
            width: parent.width
            visible: text !== ""
            text: control.chart.secondLine
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
    KarvelloChart {
        x: control.isStacked ? control.padding : figures.x + figures.width + KarvelloDesign.spacing16
        y: (control.isStacked ? figures.y + figures.height : head.y + head.height) + KarvelloDesign.spacing12
        width: control.width - control.padding - x
        height: control.height - control.padding - y
        samples: control.chart.samples
        axisWords: control.chart.axisWords
        startText: control.chart.startText
        endText: control.chart.endText
        emptyText: control.chart.emptyText
    }
}
