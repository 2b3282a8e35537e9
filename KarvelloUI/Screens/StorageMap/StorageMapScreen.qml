pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Insights
import Karvello.Screens.StorageMap

// Where the space went: the map and its table are one selection.
InsightPage {
    id: page

    required property StorageMapScreenModel screen
    // The cell under the pointer, in either place.
    property var hoveredId
    readonly property var focusedId: map.activeFocus ? map.cells[map.currentIndex]?.id : undefined
    // The area that is told of below the table.
    readonly property var toldArea: screen.areas[hoveredId ?? focusedId ?? screen.selectedId] ?? null

    insights: screen

    Binding {
        target: page.screen
        property: "isDark"
        value: KarvelloDesign.isDark
    }
    // The keyboard moves the list by itself, too.
    Binding {
        target: table
        property: "currentIndex"
        value: Math.max(0, page.screen.selectedId)
    }

    RowLayout {
        Layout.fillWidth: true
        Layout.fillHeight: true
        spacing: KarvelloDesign.spacing16

        Rectangle {
            Layout.fillWidth: true
            Layout.fillHeight: true
            implicitHeight: 360
            radius: KarvelloDesign.cardRadius
            color: KarvelloDesign.elevated1
            border.color: KarvelloDesign.line

            KarvelloTreemap {
                id: map
                objectName: "map"
                anchors.fill: parent
                anchors.margins: KarvelloDesign.spacing16
                accessibleName: page.screen.title
                cells: page.screen.cells
                selectedId: page.screen.selectedId
                hoveredId: page.hoveredId
                onHovered: id => page.hoveredId = id
                onSelected: id => page.screen.select(id)
                onActivated: id => page.screen.reveal(id)
            }
        }
        Rectangle {
            Layout.fillHeight: true
            Layout.preferredWidth: Math.max(Math.round(288 * KarvelloDesign.textFactor), Math.round(page.contentWidth * 0.336))
            implicitHeight: 360
            radius: KarvelloDesign.cardRadius
            color: KarvelloDesign.elevated1
            border.color: KarvelloDesign.line

            ColumnLayout {
                anchors.fill: parent
                anchors.margins: 1
                spacing: 0

                Rectangle {
                    Layout.fillWidth: true
                    implicitHeight: Math.max(40, head.implicitHeight + 2 * KarvelloDesign.spacing8)
                    radius: KarvelloDesign.cardRadius - 1
                    color: KarvelloDesign.elevated2

                    Rectangle {
                        anchors.bottom: parent.bottom
                        width: parent.width
                        height: parent.height / 2
                        color: KarvelloDesign.elevated2
                    }
                    Rectangle {
                        anchors.bottom: parent.bottom
                        width: parent.width
                        height: 1
                        color: KarvelloDesign.line
                    }
                    GridLayout {
                        id: head
                        readonly property bool isInOneLine:
                            tableTitle.implicitWidth + summary.implicitWidth + columnSpacing <= width
                        x: KarvelloDesign.spacing16
                        width: parent.width - 2 * x
                        anchors.verticalCenter: parent.verticalCenter
                        columns: isInOneLine ? 2 : 1
                        columnSpacing: KarvelloDesign.spacing12
                        rowSpacing: 0

                        KarvelloText {
                            id: tableTitle
                            Layout.fillWidth: true
                            text: page.screen.tableTitle
                            emphasis: KarvelloText.Strong
                            color: KarvelloDesign.ink
                            Accessible.role: Accessible.Heading
                        }
                        KarvelloText {
                            id: summary
                            text: page.screen.tableSummary
                            textStyle: KarvelloDesign.small
                            color: KarvelloDesign.ink3
                        }
                    }
                }
                KarvelloRows {
                    id: table
                    objectName: "table"
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    model: page.screen.areas
                    accessibleName: page.screen.tableTitle
                    onMoved: index => page.screen.select(index)
                    onCurrentIndexChanged: positionViewAtIndex(currentIndex, ListView.Contain)

                    delegate: StorageMapRow {
                        width: ListView.view.width
                        isCurrent: ListView.isCurrentItem
                        isSelected: page.screen.selectedId === modelData.id
                        isMarked: page.hoveredId === modelData.id
                        onClicked: page.screen.select(modelData.id)
                        onDoubleClicked: page.screen.reveal(modelData.id)
                        onHoveredChanged: page.hoveredId = hovered ? modelData.id : undefined
                        Keys.onReturnPressed: page.screen.reveal(modelData.id)
                        Keys.onEnterPressed: page.screen.reveal(modelData.id)
                    }
                }
                Rectangle {
                    Layout.fillWidth: true
                    implicitHeight: 1
                    color: KarvelloDesign.line
                }
                Item {
                    objectName: "told"
                    Layout.fillWidth: true
                    Layout.margins: KarvelloDesign.spacing16
                    Layout.topMargin: KarvelloDesign.spacing12
                    Layout.bottomMargin: 0
                    // As high with a hint as with an area, so that nothing moves under the pointer.
                    implicitHeight: Math.max(hint.implicitHeight, toldName.implicitHeight + 2 * KarvelloDesign.small.lineHeight)

                    KarvelloText {
                        id: hint
                        width: parent.width
                        visible: page.toldArea === null
                        text: page.screen.detailHint
                        textStyle: KarvelloDesign.small
                        color: KarvelloDesign.ink3
                        wrapMode: Text.Wrap
                    }
                    KarvelloText {
                        id: toldName
                        width: parent.width
                        visible: page.toldArea !== null
                        text: page.toldArea?.name ?? ""
                        emphasis: KarvelloText.Medium
                        color: KarvelloDesign.ink
                    }
                    KarvelloText {
                        y: toldName.implicitHeight
                        width: parent.width
                        visible: page.toldArea !== null
                        text: page.toldArea?.detailText ?? ""
                        textStyle: KarvelloDesign.small
                        color: KarvelloDesign.ink3
                        wrapMode: Text.Wrap
                        maximumLineCount: 2
                    }
                }
                Flow {
                    Layout.fillWidth: true
                    Layout.margins: KarvelloDesign.spacing12
                    spacing: KarvelloDesign.spacing8

                    KarvelloButton {
                        objectName: "reveal"
                        size: KarvelloButton.Small
                        iconName: "folder"
                        text: page.screen.revealText
                        enabled: page.screen.selectedId >= 0
                        onClicked: page.screen.reveal(page.screen.selectedId)
                    }
                    KarvelloButton {
                        kind: KarvelloButton.Link
                        size: KarvelloButton.Small
                        text: page.screen.largeFilesText
                        onClicked: page.screen.showLargeFiles()
                    }
                }
            }
        }
    }
    RowLayout {
        Layout.fillWidth: true
        spacing: KarvelloDesign.spacing16

        KarvelloText {
            Layout.fillWidth: true
            text: page.screen.legendText
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            wrapMode: Text.Wrap
        }
        KarvelloTreemapLegend {
            Layout.minimumWidth: implicitWidth
            entries: page.screen.legend
            accessibleName: page.screen.legendText
        }
    }
}
