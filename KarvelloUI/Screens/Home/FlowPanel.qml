pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Home

// The four steps from home to restore, in a row, or in two where there is no room.
Rectangle {
    id: control

    required property RowList steps
    readonly property bool isOneRow: width >= 760 * KarvelloDesign.textFactor

    signal openRequested(string section)

    implicitWidth: 920
    implicitHeight: grid.implicitHeight + 2 * KarvelloDesign.spacing4
    radius: KarvelloDesign.cardRadius
    color: KarvelloDesign.elevated1
    border.color: KarvelloDesign.line

    GridLayout {
        id: grid
        x: KarvelloDesign.spacing12
        y: KarvelloDesign.spacing4
        width: parent.width - 2 * KarvelloDesign.spacing12
        columns: control.isOneRow ? 4 : 2
        columnSpacing: KarvelloDesign.spacing8
        rowSpacing: 0

        Repeater {
            model: control.steps
            FlowStep {
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                hasNext: (index + 1) % grid.columns !== 0
                onClicked: control.openRequested(entry.section)
            }
        }
    }
}
