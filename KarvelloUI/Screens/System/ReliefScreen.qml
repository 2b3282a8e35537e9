import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.System

// "CPU Analysis" and "Memory Analysis": how hard the machine works, what that means, and what can be done.
KarvelloPage {
    id: control

    required property ReliefScreenModel screen

    readonly property bool isStacked: KarvelloDesign.textFactor >= 1.25

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
    Shortcut {
        sequence: "Ctrl+Shift+A"
        enabled: control.visible
        onActivated: control.screen.clearSelection()
    }
    Shortcut {
        sequences: ["Ctrl+Return", "Ctrl+Enter"]
        enabled: control.visible
        onActivated: control.screen.requestQuit()
    }

    GridLayout {
        // What is left of the height is the list's.
        Layout.fillHeight: false
        columns: control.isStacked ? 1 : 2
        columnSpacing: KarvelloDesign.spacing16
        rowSpacing: KarvelloDesign.spacing16

        LoadCard {
            objectName: "chart"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.minimumHeight: 240
            Layout.preferredWidth: 608
            chart: control.screen.chart
        }
        KarvelloCard {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 328
            title: control.screen.interpretationTitle

            KarvelloText {
                objectName: "interpretation"
                Layout.fillWidth: true
                visible: text !== ""
                text: control.screen.interpretation
                wrapMode: Text.Wrap
            }
            Rectangle {
                Layout.fillWidth: true
                visible: control.screen.suggestedAction !== ""
                implicitHeight: action.implicitHeight + 2 * KarvelloDesign.spacing12
                radius: KarvelloDesign.bannerRadius
                color: KarvelloDesign.elevated2
                border.color: KarvelloDesign.line

                RowLayout {
                    id: action
                    x: KarvelloDesign.spacing12
                    y: KarvelloDesign.spacing12
                    width: parent.width - 2 * x
                    spacing: KarvelloDesign.spacing12

                    KarvelloIcon {
                        name: "arrow-right"
                        tint: KarvelloDesign.accent
                    }
                    KarvelloText {
                        objectName: "action"
                        Layout.fillWidth: true
                        text: control.screen.suggestedAction
                        emphasis: KarvelloText.Medium
                        color: KarvelloDesign.ink
                        wrapMode: Text.Wrap
                    }
                }
            }
            KarvelloText {
                Layout.fillWidth: true
                text: control.screen.guarantee
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                wrapMode: Text.Wrap
            }
        }
    }
    ReliefCard {
        objectName: "relief"
        Layout.fillWidth: true
        Layout.fillHeight: true
        screen: control.screen
    }
}
