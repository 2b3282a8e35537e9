pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.System

// The machine as it is now.
KarvelloPage {
    id: control

    required property SystemScreenModel screen

    readonly property bool isLargeText: KarvelloDesign.textFactor >= 1.25

    title: screen.title
    subtitle: screen.subtitle
    actions: [
        KarvelloButton {
            objectName: "monitor"
            text: control.screen.monitorTitle
            onClicked: control.screen.openMonitor()
        },
        KarvelloButton {
            objectName: "refresh"
            iconName: "refresh"
            text: control.screen.refreshTitle
            onClicked: control.screen.refresh()
        }
    ]

    Shortcut {
        sequence: "Ctrl+R"
        enabled: control.visible
        onActivated: control.screen.refresh()
    }

    LoadCard {
        objectName: "pulse"
        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.minimumHeight: 240
        chart: control.screen.pulse
    }
    GridLayout {
        // What is left of the height is the chart's.
        Layout.fillHeight: false
        columns: control.isLargeText ? 2 : 3
        columnSpacing: KarvelloDesign.spacing16
        rowSpacing: KarvelloDesign.spacing16

        SystemTileCard {
            objectName: "memory"
            iconName: "memory"
            tile: control.screen.memory
        }
        SystemTileCard {
            objectName: "thermal"
            iconName: "thermal"
            tile: control.screen.thermal
        }
        SystemTileCard {
            objectName: "disk"
            Layout.columnSpan: control.isLargeText ? 2 : 1
            iconName: "disk"
            tile: control.screen.disk

            KarvelloProgressBar {
                Layout.fillWidth: true
                Layout.bottomMargin: KarvelloDesign.spacing16
                value: control.screen.disk.fraction
                tint: control.screen.disk.pillKind === KarvelloDesign.CautionPill ? KarvelloDesign.caution
                    : KarvelloDesign.lineStrong
                Accessible.ignored: true
            }
        }
    }
    GridLayout {
        Layout.fillHeight: false
        columns: control.isLargeText ? 1 : 2
        columnSpacing: KarvelloDesign.spacing16
        rowSpacing: KarvelloDesign.spacing16

        KarvelloCard {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            title: control.screen.notesTitle

            // By their number, so that another language leaves the items in their places.
            Repeater {
                model: control.screen.notes.length

                RowLayout {
                    id: note
                    required property int index
                    spacing: KarvelloDesign.spacing12

                    KarvelloIcon {
                        Layout.alignment: Qt.AlignTop
                        Layout.topMargin: 1
                        name: "info"
                    }
                    KarvelloText {
                        Layout.fillWidth: true
                        text: control.screen.notes[note.index] ?? ""
                        wrapMode: Text.Wrap
                    }
                }
            }
        }
        KarvelloCard {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            title: control.screen.factsTitle

            FactRow { fact: control.screen.uptime }
            FactRow { fact: control.screen.loadAverage }
            FactRow { fact: control.screen.activeCores }
        }
    }
}
