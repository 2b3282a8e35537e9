pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Popover

// What asks for a look now, or that nothing does.
ColumnLayout {
    id: control

    required property StatusPopoverModel popover

    signal rowReached(Item row)

    spacing: KarvelloDesign.spacing8

    RowLayout {
        spacing: KarvelloDesign.spacing8

        KarvelloIcon {
            name: "triage"
            tint: KarvelloDesign.ink2
        }
        KarvelloText {
            Layout.fillWidth: true
            text: control.popover.triageTitle
            textStyle: KarvelloDesign.heading
            color: KarvelloDesign.ink
            Accessible.role: Accessible.Heading
        }
    }
    KarvelloText {
        Layout.fillWidth: true
        text: control.popover.triageBody
        textStyle: KarvelloDesign.small
        color: KarvelloDesign.ink3
        wrapMode: Text.Wrap
    }
    RowLayout {
        visible: control.popover.isCalm
        spacing: KarvelloDesign.spacing8

        KarvelloIcon {
            Layout.alignment: Qt.AlignTop
            Layout.topMargin: 1
            name: "done"
            tint: KarvelloDesign.accent
        }
        KarvelloText {
            objectName: "calm"
            Layout.fillWidth: true
            text: control.popover.triageEmptyTitle
            wrapMode: Text.Wrap
        }
    }
    // No layout: one that is hidden while its items go keeps looking at them, and the program crashes in it (Qt 6.4).
    Column {
        id: list
        Layout.fillWidth: true
        visible: !control.popover.isCalm
        spacing: KarvelloDesign.spacing8

        Accessible.role: Accessible.List
        Accessible.name: control.popover.triageTitle

        Repeater {
            model: control.popover.triage

            TriageRow {
                required property int index

                width: list.width
                onReviewRequested: control.popover.review(index)
                onReached: control.rowReached(this)
            }
        }
    }
}
