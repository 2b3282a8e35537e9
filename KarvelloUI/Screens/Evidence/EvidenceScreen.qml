// Parts of this file know the ids around them. The pragma that would say so breaks loaders and inline parts in Qt 6.4.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Evidence
import Karvello.Screens.Home

// What was done and what can be taken back at the left; what it brought, and what comes up for review, at the right.
KarvelloPage {
    id: control

    required property EvidenceScreenModel screen
    readonly property bool isStacked: KarvelloDesign.textFactor >= 1.25 || contentWidth < 860

    title: screen.title
    subtitle: screen.subtitle
    landings: [work.cancelButton, restoreCenter]

    Shortcut {
        sequences: [StandardKey.SelectAll]
        enabled: control.visible
        onActivated: control.screen.restoreCenter.selectAll()
    }
    Shortcut {
        sequence: "Ctrl+Shift+A"
        enabled: control.visible
        onActivated: control.screen.restoreCenter.clearSelection()
    }
    KarvelloBanner {
        Layout.fillWidth: true
        text: control.screen.notice
    }
    KarvelloBanner {
        objectName: "failure"
        Layout.fillWidth: true
        visible: text !== ""
        kind: KarvelloBanner.Review
        text: control.screen.errorText
        closeName: control.screen.closeName
        onCloseRequested: control.screen.closeError()
    }
    KarvelloProgressStrip {
        id: work
        objectName: "work"
        Layout.fillWidth: true
        visible: title !== ""
        title: control.screen.workTitle
        progress: control.screen.workProgress
        progressText: control.screen.workProgressText
        cancelText: control.screen.cancelTitle
        onCancelRequested: control.screen.cancelWork()
    }
    GridLayout {
        columns: control.isStacked ? 1 : 2
        columnSpacing: KarvelloDesign.spacing16
        rowSpacing: KarvelloDesign.spacing16

        ColumnLayout {
            Layout.alignment: Qt.AlignTop
            Layout.fillWidth: true
            Layout.preferredWidth: 588
            spacing: KarvelloDesign.spacing16

            RestoreCenterCard {
                id: restoreCenter
                Layout.fillWidth: true
                center: control.screen.restoreCenter
            }
            CleanupHistoryCard {
                Layout.fillWidth: true
                history: control.screen.history
            }
        }
        ColumnLayout {
            Layout.alignment: Qt.AlignTop
            Layout.fillWidth: true
            Layout.preferredWidth: 348
            spacing: KarvelloDesign.spacing16

            ImpactReportCard {
                Layout.fillWidth: true
                report: control.screen.impactReport
            }
            LastResultCard {
                objectName: "lastRestore"
                Layout.fillWidth: true
                result: control.screen.lastRestore
            }
            LastResultCard {
                objectName: "lastClean"
                Layout.fillWidth: true
                // What it moved, the report above tells already.
                visible: result.failedTitle !== ""
                result: control.screen.lastClean
            }
            ReviewLoopPanel {
                Layout.fillWidth: true
                panel: control.screen.reviewLoop
            }
        }
    }
    ProjectPanel {
        Layout.fillWidth: true
        panel: control.screen.projects
    }
    // On a tall window the cards stay together at the top.
    Item { Layout.fillHeight: true }
}
