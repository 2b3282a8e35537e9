import QtQuick
import QtQuick.Layouts
import Karvello.Design

// The disk: what is free, and a bar of what is used, with the part that could be free at its end.
Item {
    id: control

    required property var hero
    // What both captions need side by side, with their margins.
    readonly property real captionsWidth: Math.ceil(used.implicitWidth + reclaimable.implicitWidth)
        + KarvelloDesign.spacing16 + 2 * KarvelloDesign.spacing24

    implicitWidth: 340
    implicitHeight: Math.ceil(column.implicitHeight) + 2 * KarvelloDesign.spacing20

    Accessible.role: Accessible.Indicator
    Accessible.name: KarvelloDesign.spoken(
        [hero.title, hero.percent, hero.freeText, hero.usedText, hero.reclaimableText])

    ColumnLayout {
        id: column
        x: KarvelloDesign.spacing24
        y: KarvelloDesign.spacing20
        width: parent.width - 2 * KarvelloDesign.spacing24
        height: parent.height - 2 * KarvelloDesign.spacing20
        spacing: 0

        RowLayout {
            spacing: KarvelloDesign.spacing8
            KarvelloIcon {
                name: "disk"
                tint: KarvelloDesign.ink2
            }
            KarvelloText {
                Layout.fillWidth: true
                text: control.hero.title
                Accessible.ignored: true
            }
            KarvelloPill {
                visible: text !== ""
                kind: KarvelloDesign.AccentPill
                text: control.hero.pillText
                Accessible.ignored: true
            }
        }
        RowLayout {
            Layout.topMargin: KarvelloDesign.spacing12
            spacing: KarvelloDesign.spacing12
            KarvelloText {
                id: percent
                objectName: "freePercent"
                text: control.hero.percent
                textStyle: KarvelloDesign.display
                color: KarvelloDesign.ink
                Accessible.ignored: true
            }
            KarvelloText {
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignBaseline
                text: control.hero.freeText
                textStyle: KarvelloDesign.heading
                font: KarvelloDesign.heading.medium
                color: KarvelloDesign.ink3
                Accessible.ignored: true
            }
        }
        Item {
            Layout.fillHeight: true
            Layout.minimumHeight: KarvelloDesign.spacing16
        }
        Rectangle {
            id: bar
            Layout.fillWidth: true
            implicitHeight: 8
            radius: height / 2
            color: KarvelloDesign.elevated3

            Rectangle {
                id: usedPart
                width: control.hero.usedFraction > 0
                    ? Math.max(height, Math.round(control.hero.usedFraction * bar.width)) : 0
                height: parent.height
                radius: height / 2
                color: KarvelloDesign.lineStrong
            }
            // A line of the ground keeps the two apart.
            Rectangle {
                readonly property real part: control.hero.reclaimableFraction > 0
                    ? Math.max(6, Math.round(control.hero.reclaimableFraction * bar.width)) : 0
                visible: part > 0
                x: usedPart.width - part - 2
                width: part + 2
                height: parent.height
                color: KarvelloDesign.elevated1
                Rectangle {
                    x: 2
                    width: parent.width - 2
                    height: parent.height
                    radius: KarvelloDesign.swatchRadius
                    color: KarvelloDesign.accent
                }
            }
        }
        Flow {
            Layout.fillWidth: true
            Layout.topMargin: KarvelloDesign.spacing8
            spacing: KarvelloDesign.spacing4

            KarvelloText {
                id: used
                readonly property bool isBeside: implicitWidth + reclaimable.implicitWidth + 16 <= parent.width
                width: isBeside && reclaimable.visible ? parent.width - reclaimable.implicitWidth - parent.spacing
                    : parent.width
                text: control.hero.usedText
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                Accessible.ignored: true
            }
            RowLayout {
                id: reclaimable
                width: Math.min(implicitWidth, parent.width)
                visible: control.hero.reclaimableText !== ""
                spacing: KarvelloDesign.spacing8
                Rectangle {
                    implicitWidth: 8
                    implicitHeight: 8
                    radius: KarvelloDesign.swatchRadius
                    color: KarvelloDesign.accent
                }
                KarvelloText {
                    Layout.fillWidth: true
                    text: control.hero.reclaimableText
                    textStyle: KarvelloDesign.small
                    color: KarvelloDesign.ink3
                    Accessible.ignored: true
                }
            }
        }
    }
}
