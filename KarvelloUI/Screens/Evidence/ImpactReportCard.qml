import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Evidence

// Three bars on one scale: what was expected, what was done, and what came free of it.
KarvelloCard {
    id: control

    required property ImpactReportModel report

    title: report.title
    subtitle: report.subtitle
    Accessible.name: report.hasReport ? report.accessibleName : report.title

    KarvelloText {
        Layout.fillWidth: true
        visible: !control.report.hasReport
        text: control.report.emptyText
        color: KarvelloDesign.ink3
        wrapMode: Text.Wrap
    }
    // No layout: one that is hidden while its items go keeps looking at them, and the program crashes in it (Qt 6.4).
    Column {
        Layout.fillWidth: true
        spacing: KarvelloDesign.spacing12

        Repeater {
            model: control.report.bars
            ColumnLayout {
                id: bar
                required property var entry

                width: parent ? parent.width : 0
                spacing: KarvelloDesign.spacing4

                RowLayout {
                    spacing: KarvelloDesign.spacing12
                    KarvelloText {
                        Layout.fillWidth: true
                        text: bar.entry.label
                        wrapMode: Text.Wrap
                    }
                    KarvelloText {
                        text: bar.entry.value
                        emphasis: KarvelloText.Strong
                        color: KarvelloDesign.ink
                    }
                }
                KarvelloProgressBar {
                    Layout.fillWidth: true
                    value: bar.entry.fraction
                    tint: bar.entry.isPending ? KarvelloDesign.caution
                        : bar.entry.isRecovered ? KarvelloDesign.safe : KarvelloDesign.lineStrong
                    accessibleName: bar.entry.label + ", " + bar.entry.value
                }
            }
        }
    }
    KarvelloText {
        Layout.fillWidth: true
        visible: text !== ""
        text: control.report.summary
        textStyle: KarvelloDesign.small
        color: KarvelloDesign.ink3
        wrapMode: Text.Wrap
    }
}
