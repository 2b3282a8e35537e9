pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Home

// The small story of the disk. Estimates, moves and recovered bytes stay apart: each has its own line, and there is no sum.
KarvelloCard {
    id: control

    required property RowList points
    property string emptyText
    readonly property var rowKinds: ({
        currentStorage: KarvelloTimelineRow.PresentState,
        lowDiskReminder: KarvelloTimelineRow.LowSpace,
        cleanupScanEstimate: KarvelloTimelineRow.Estimate,
        insightReviewOpportunity: KarvelloTimelineRow.Opportunity,
        movedToTrashPending: KarvelloTimelineRow.Pending,
        recoveredSpace: KarvelloTimelineRow.Recovered
    })

    signal openRequested(string section)

    // No layout: one that is hidden while its items go keeps looking at them, and the program crashes in it (Qt 6.4).
    Column {
        id: list
        Layout.fillWidth: true
        visible: control.points.count > 0
        Accessible.role: Accessible.List
        Accessible.name: control.title

        Repeater {
            model: control.points
            KarvelloTimelineRow {
                required property var entry
                required property int index

                width: list.width
                kind: control.rowKinds[entry.kind]
                title: entry.title
                date: entry.date
                figure: entry.figure
                text: entry.text
                detail: entry.detail
                actionText: entry.actionTitle
                isLast: index + 1 === control.points.count
                onActionRequested: control.openRequested(entry.section)
            }
        }
    }
    KarvelloText {
        objectName: "emptyTimeline"
        Layout.fillWidth: true
        visible: control.points.count === 0
        text: control.emptyText
        color: KarvelloDesign.ink3
        wrapMode: Text.Wrap
    }
}
