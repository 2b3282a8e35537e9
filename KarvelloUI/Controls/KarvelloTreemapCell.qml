import QtQuick
import QtQuick.Templates as T
import Karvello.Design

// One cell of a treemap. How much it says depends on its size; the rest is in its tool tip.
T.AbstractButton {
    id: control

    required property var cell
    property bool isSelected: false
    property bool isHovered: hovered

    readonly property real factor: KarvelloDesign.textFactor
    readonly property bool isLarge: width >= 132 * factor && height >= 76 * factor
    readonly property bool isTall: isLarge && height >= 104 * factor
    readonly property bool isMedium: !isLarge && width >= 72 * factor && height >= 48 * factor
    readonly property bool hasName: isLarge || isMedium || (width >= 56 * factor && height >= 24 * factor)
    readonly property bool isFull: isSelected || activeFocus
    readonly property color ink: isFull ? KarvelloDesign.heatmapInvertedInk : KarvelloDesign.ink
    readonly property color ink2: isFull ? KarvelloDesign.heatmapInvertedInk2 : KarvelloDesign.ink2
    readonly property string spokenName: KarvelloDesign.spoken(
        [cell.name, cell.sizeText, cell.countText ?? "", cell.shareText ?? "", cell.partialText ?? ""])

    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    horizontalPadding: isLarge ? 14 : isMedium ? 8 : 6
    verticalPadding: isLarge ? 12 : isMedium ? 6 : 3

    Accessible.name: spokenName
    KarvelloSpoken.focusable: true
    KarvelloSpoken.role: Accessible.ListItem
    Accessible.selectable: true
    Accessible.selected: isSelected

    KarvelloHint {
        target: control
        text: control.spokenName
    }

    contentItem: Item {
        Column {
            width: parent.width
            spacing: 1
            visible: control.hasName

            KarvelloText {
                width: parent.width
                text: control.cell.name
                textStyle: control.isLarge ? KarvelloDesign.heading : control.isMedium ? KarvelloDesign.small : KarvelloDesign.label
                emphasis: control.isLarge || control.isMedium || control.isFull ? KarvelloText.Strong : KarvelloText.Medium
                color: control.ink
                Accessible.ignored: true
            }
            KarvelloText {
                width: parent.width
                visible: control.isLarge || control.isMedium
                text: control.cell.sizeText
                textStyle: control.isLarge ? KarvelloDesign.body : KarvelloDesign.small
                emphasis: control.isFull ? KarvelloText.Strong : KarvelloText.Plain
                color: control.ink2
                Accessible.ignored: true
            }
            KarvelloText {
                width: parent.width
                visible: control.isTall && text !== ""
                text: control.cell.countText ?? ""
                textStyle: KarvelloDesign.small
                emphasis: control.isFull ? KarvelloText.Strong : KarvelloText.Plain
                color: control.ink2
                Accessible.ignored: true
            }
            KarvelloText {
                width: parent.width
                visible: control.isTall && text !== ""
                text: control.cell.partialText ?? ""
                textStyle: KarvelloDesign.small
                emphasis: control.isFull ? KarvelloText.Strong : KarvelloText.Plain
                color: control.ink2
                Accessible.ignored: true
            }
        }
    }
    background: Rectangle {
        readonly property real strength: control.isHovered ? 0.25 : KarvelloDesign.isDark ? 0.2 : 0.15

        radius: KarvelloDesign.checkBoxRadius
        color: control.isFull ? control.cell.tint : Qt.tint(KarvelloDesign.elevated1, Qt.alpha(control.cell.tint, strength))
        border.color: control.isFull ? control.cell.tint
            : Qt.tint(KarvelloDesign.elevated1, Qt.alpha(control.cell.tint, 0.55))
        FocusRing {
            isShown: control.visualFocus
            distance: 2
            radius: 2
            border.color: KarvelloDesign.heatmapInvertedInk
        }
    }
}
