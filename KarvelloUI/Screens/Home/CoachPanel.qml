pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Home

// What to review first: up to three cards, the best first. Each leads to a section and does nothing else.
ColumnLayout {
    id: control

    required property RowList cards
    property string title
    property string subtitle
    readonly property int fittingColumns: Math.floor(
        (width + KarvelloDesign.spacing16) / (260 * KarvelloDesign.textFactor + KarvelloDesign.spacing16))

    signal openRequested(string section)

    spacing: KarvelloDesign.spacing12

    Accessible.role: Accessible.Grouping
    Accessible.name: title

    ColumnLayout {
        spacing: 2
        KarvelloText {
            Layout.fillWidth: true
            text: control.title
            textStyle: KarvelloDesign.heading
            color: KarvelloDesign.ink
            Accessible.role: Accessible.Heading
        }
        KarvelloText {
            Layout.fillWidth: true
            text: control.subtitle
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            wrapMode: Text.Wrap
        }
    }
    GridLayout {
        id: grid
        columns: Math.max(1, Math.min(3, control.fittingColumns, control.cards.count))
        columnSpacing: KarvelloDesign.spacing16
        rowSpacing: KarvelloDesign.spacing16

        Repeater {
            model: control.cards
            CoachCard {
                id: card
                required property int index

                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredWidth: 1
                // The last one fills its row.
                Layout.columnSpan: index + 1 < control.cards.count ? 1 : grid.columns - index % grid.columns
                onActionRequested: control.openRequested(card.entry.section)
            }
        }
    }
}
