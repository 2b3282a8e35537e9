import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design

// One folder in the table beside the map: the map in words.
T.ItemDelegate {
    id: row

    required property var modelData
    required property int index
    property bool isSelected: false
    // The pointer is over its cell.
    property bool isMarked: false
    property bool isCurrent: false
    readonly property string spokenName: KarvelloDesign.spoken(
        [modelData.name, modelData.sizeText, modelData.countText, modelData.shareText, modelData.partialText, modelData.path])

    implicitHeight: Math.max(50, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    horizontalPadding: KarvelloDesign.spacing16
    verticalPadding: KarvelloDesign.spacing4
    hoverEnabled: true
    focusPolicy: isCurrent ? Qt.StrongFocus : Qt.ClickFocus

    Accessible.name: spokenName
    KarvelloSpoken.focusable: true
    KarvelloSpoken.role: Accessible.ListItem
    Accessible.selectable: true
    Accessible.selected: isSelected
    Accessible.onPressAction: row.clicked()

    contentItem: RowLayout {
        spacing: KarvelloDesign.spacing12

        Rectangle {
            implicitWidth: 10
            implicitHeight: 10
            radius: KarvelloDesign.swatchRadius
            color: row.modelData.tint
        }
        ColumnLayout {
            spacing: 0

            RowLayout {
                spacing: KarvelloDesign.spacing8
                KarvelloText {
                    Layout.fillWidth: true
                    Layout.maximumWidth: Math.ceil(implicitWidth)
                    text: row.modelData.name
                    emphasis: KarvelloText.Medium
                    color: KarvelloDesign.ink
                    Accessible.ignored: true
                }
                KarvelloPill {
                    visible: text !== ""
                    text: row.modelData.partialText
                    Accessible.ignored: true
                }
                Item { Layout.fillWidth: true }
            }
            KarvelloText {
                Layout.fillWidth: true
                text: row.modelData.path
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                elide: Text.ElideMiddle
                Accessible.ignored: true
            }
        }
        ColumnLayout {
            Layout.fillWidth: false
            spacing: 0

            KarvelloText {
                Layout.alignment: Qt.AlignRight
                text: row.modelData.sizeText
                emphasis: KarvelloText.Medium
                color: KarvelloDesign.ink
                Accessible.ignored: true
            }
            KarvelloText {
                Layout.alignment: Qt.AlignRight
                text: row.modelData.shortCountText
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                Accessible.ignored: true
            }
        }
    }
    background: Rectangle {
        color: row.isSelected ? KarvelloDesign.accentSoft
            : row.hovered || row.isMarked ? KarvelloDesign.elevated2 : "transparent"
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: KarvelloDesign.lineSoft
        }
        FocusRing {
            isShown: row.visualFocus
            distance: 2
            radius: KarvelloDesign.checkBoxRadius
        }
    }
}
