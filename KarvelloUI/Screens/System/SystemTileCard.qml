import QtQuick
import QtQuick.Layouts
import Karvello.Design

// A tile of the system's figures.
KarvelloMetricTile {
    required property var tile

    Layout.fillWidth: true
    Layout.fillHeight: true
    Layout.preferredWidth: 1
    isCard: true
    name: tile.name
    pillText: tile.pillText
    pillKind: tile.pillKind
    figure: tile.figure
    unit: tile.unit
    text: tile.text
    samples: tile.samples
    emptyText: tile.emptyText
    accessibleValue: tile.accessibleValue
}
