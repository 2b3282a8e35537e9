pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Home

// How much is free, and three figures of the machine: side by side, or one below the other where there is no room.
Rectangle {
    id: control

    required property var hero
    required property RowList metrics
    readonly property real leastTileWidth: 176 * KarvelloDesign.textFactor
    readonly property real leastDiskWidth: Math.max(340 * KarvelloDesign.textFactor, disk.captionsWidth)
    readonly property bool isWide: width >= leastDiskWidth + 3 * leastTileWidth

    implicitWidth: 920
    implicitHeight: grid.implicitHeight
    radius: KarvelloDesign.cardRadius
    color: KarvelloDesign.elevated1
    border.color: KarvelloDesign.line

    GridLayout {
        id: grid
        width: parent.width
        columns: control.isWide ? 2 : 1
        columnSpacing: 0
        rowSpacing: 0

        DiskPanel {
            id: disk
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: control.isWide ? Math.max(control.leastDiskWidth, 0.36 * control.width) : control.width
            hero: control.hero
        }
        RowLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: control.isWide ? control.width - disk.Layout.preferredWidth : control.width
            spacing: 0

            Repeater {
                model: control.metrics
                KarvelloMetricTile {
                    id: tile
                    required property var entry
                    required property int index

                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    Layout.preferredWidth: 1
                    iconName: entry.iconName
                    name: entry.name
                    note: entry.note
                    figure: entry.figure
                    unit: entry.unit
                    text: entry.text
                    samples: entry.samples
                    emptyText: entry.emptyText
                    accessibleValue: entry.accessibleValue

                    Rectangle {
                        parent: tile
                        visible: control.isWide || tile.index > 0
                        width: 1
                        height: tile.height
                        color: KarvelloDesign.line
                    }
                }
            }
        }
    }
    Rectangle {
        visible: !control.isWide
        y: disk.height
        width: parent.width
        height: 1
        color: KarvelloDesign.line
    }
}
