import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Home

// Live Dashboard: how the disk and the machine are, and where to go on. Nothing here selects or moves a file.
KarvelloPage {
    id: control

    required property HomeScreenModel screen
    // Side by side while both columns stay readable.
    readonly property bool hasTwoColumns: contentWidth >= 820 * KarvelloDesign.textFactor

    title: screen.texts.title
    subtitle: screen.texts.subtitle

    actions: KarvelloButton {
        objectName: "startScan"
        kind: KarvelloButton.Tonal
        iconName: "scan"
        text: control.screen.texts.startScanTitle
        enabled: control.screen.canStartScan
        isBusy: control.screen.isScanning
        disabledReason: control.screen.texts.startScanReason
        onClicked: control.screen.startScan()

        KarvelloHint {
            target: parent as Item
            text: control.screen.texts.startScanReason
        }
    }

    Shortcut {
        sequence: "Ctrl+R"
        enabled: control.visible && control.screen.canStartScan
        onActivated: control.screen.startScan()
    }

    HeroPanel {
        Layout.fillWidth: true
        hero: control.screen.hero
        metrics: control.screen.metrics
    }
    FlowPanel {
        Layout.fillWidth: true
        steps: control.screen.flow
        onOpenRequested: section => {
            control.scrollToTop()
            control.screen.openSection(section)
        }
    }
    KarvelloBanner {
        objectName: "summary"
        Layout.fillWidth: true
        visible: text !== ""
        text: control.screen.texts.summary
    }
    CoachPanel {
        Layout.fillWidth: true
        title: control.screen.texts.coachTitle
        subtitle: control.screen.texts.coachSubtitle
        cards: control.screen.coach
        onOpenRequested: section => control.screen.openSection(section)
    }
    GridLayout {
        columns: control.hasTwoColumns ? 2 : 1
        columnSpacing: KarvelloDesign.spacing16
        rowSpacing: KarvelloDesign.spacing16

        ColumnLayout {
            Layout.alignment: Qt.AlignTop
            Layout.fillWidth: true
            Layout.preferredWidth: control.hasTwoColumns ? Math.round(0.58 * control.contentWidth) : control.contentWidth
            spacing: KarvelloDesign.spacing16

            TimelinePanel {
                Layout.fillWidth: true
                title: control.screen.texts.timelineTitle
                subtitle: control.screen.texts.timelineSubtitle
                emptyText: control.screen.texts.timelineEmptyText
                points: control.screen.timeline
                onOpenRequested: section => control.screen.openSection(section)
            }
            ProjectPanel {
                Layout.fillWidth: true
                panel: control.screen.projects
            }
        }
        ColumnLayout {
            Layout.alignment: Qt.AlignTop
            Layout.fillWidth: true
            Layout.preferredWidth: control.hasTwoColumns ? Math.round(0.42 * control.contentWidth) : control.contentWidth
            spacing: KarvelloDesign.spacing16

            ReviewLoopPanel {
                Layout.fillWidth: true
                panel: control.screen.reviewLoop
            }
            BaselinePanel {
                Layout.fillWidth: true
                title: control.screen.texts.baselineTitle
                lines: control.screen.texts.baselineLines
            }
        }
    }
}
