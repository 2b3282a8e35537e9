import QtQuick
import QtQuick.Layouts
import Karvello.Design

// A large chart with its figure at the left, or above it when the texts are large.
KarvelloCard {
    id: control

    required property var chart

    readonly property bool isStacked: KarvelloDesign.textFactor >= 1.25
    readonly property int chartHeight: Math.max(140, height - head.height - 2 * padding - KarvelloDesign.spacing12
        - (isStacked ? figures.height + KarvelloDesign.spacing12 : 0))

    Accessible.role: Accessible.Indicator
    Accessible.name: KarvelloDesign.spoken([chart.title, chart.figure, chart.pillText, chart.firstLine, chart.secondLine])
    Accessible.description: KarvelloDesign.spoken([chart.note, chart.accessibleValue])

    RowLayout {
        id: head
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
    GridLayout {
        columns: control.isStacked ? 1 : 2
        columnSpacing: KarvelloDesign.spacing16
        rowSpacing: KarvelloDesign.spacing12

        ColumnLayout {
            id: figures
            Layout.alignment: Qt.AlignBottom
            Layout.minimumWidth: control.isStacked ? 0 : 152
            Layout.maximumWidth: control.isStacked ? -1 : Math.max(152, control.width * 0.3)
            Layout.bottomMargin: control.isStacked ? 0 : Math.ceil(KarvelloDesign.label.lineHeight)
            spacing: 0

            KarvelloText {
                text: control.chart.figure
                textStyle: KarvelloDesign.display
                color: KarvelloDesign.ink
                Accessible.ignored: true
            }
            KarvelloText {
                Layout.fillWidth: true
                text: control.chart.firstLine
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            KarvelloText {
                Layout.fillWidth: true
                text: control.chart.secondLine
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
        KarvelloChart {
            Layout.fillWidth: true
            Layout.preferredHeight: control.chartHeight
            samples: control.chart.samples
            axisWords: control.chart.axisWords
            startText: control.chart.startText
            endText: control.chart.endText
            emptyText: control.chart.emptyText
        }
    }
}
