import QtQuick
import QtQuick.Layouts
import Karvello.Design

// One recommendation: how much, what, why, and where to.
KarvelloCard {
    id: control

    required property var entry

    signal actionRequested()

    isFirstChoice: entry.pillText !== ""
    fillsHeight: true
    Accessible.name: KarvelloDesign.spoken([entry.title, entry.figure, entry.pillText])
    Accessible.description: entry.body

    RowLayout {
        spacing: KarvelloDesign.spacing12

        IconTile {
            name: control.entry.iconName
            color: control.isFirstChoice ? KarvelloDesign.accentSoft : KarvelloDesign.elevated3
            tint: control.isFirstChoice ? KarvelloDesign.accent : KarvelloDesign.ink2
        }
        KarvelloText {
            Layout.fillWidth: true
            text: control.entry.figure
            textStyle: KarvelloDesign.title
            color: KarvelloDesign.ink
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 13
            Accessible.ignored: true
        }
        KarvelloPill {
            visible: text !== ""
            kind: KarvelloDesign.AccentPill
            text: control.entry.pillText
            Accessible.ignored: true
        }
    }
    ColumnLayout {
        spacing: 2

        KarvelloText {
            Layout.fillWidth: true
            text: control.entry.title
            emphasis: KarvelloText.Strong
            color: KarvelloDesign.ink
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        KarvelloText {
            Layout.fillWidth: true
            text: control.entry.body
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }
    // Cards side by side have their links at one height.
    Item {
        Layout.fillHeight: true
        implicitHeight: action.implicitHeight

        KarvelloButton {
            id: action
            objectName: "coachAction"
            anchors.bottom: parent.bottom
            width: Math.min(implicitWidth, control.width - 2 * control.padding)
            kind: KarvelloButton.Link
            size: KarvelloButton.Small
            leftPadding: 0
            text: control.entry.actionTitle
            onClicked: control.actionRequested()
        }
    }
}
