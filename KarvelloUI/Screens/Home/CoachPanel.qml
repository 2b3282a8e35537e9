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
    // No layout: one that is hidden while its items go keeps looking at them, and the program crashes in it (Qt 6.4).
    Flow {
        id: grid
        readonly property int columns: Math.max(1, Math.min(3, control.fittingColumns, control.cards.count))
        readonly property real cardWidth: Math.floor((width - (columns - 1) * spacing) / columns)
        readonly property real cardHeight: {
            let highest = 0
            for (let place = 0; place < repeater.count; ++place)
                highest = Math.max(highest, (repeater.itemAt(place) as Item)?.implicitHeight ?? 0)
            return highest
        }

        Layout.fillWidth: true
        spacing: KarvelloDesign.spacing16

        Repeater {
            id: repeater
            model: control.cards
            CoachCard {
                id: card
                required property int index
                // The last one fills its row.
                readonly property bool isLast: index + 1 === control.cards.count
                readonly property real start: index % grid.columns * (grid.cardWidth + grid.spacing)

                width: isLast ? grid.width - start : grid.cardWidth
                height: grid.cardHeight
                onActionRequested: control.openRequested(card.entry.section)
            }
        }
    }
}
