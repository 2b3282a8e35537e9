import QtQuick
import QtQuick.Layouts
import Karvello.Design

// One point of the storage timeline. Its dot says what sort of figure it is, and so do title and detail.
Item {
    id: control

    enum Kind { PresentState, Estimate, Opportunity, Pending, Recovered, LowSpace }

    property int kind: KarvelloTimelineRow.PresentState
    property string title
    property string date
    property string figure
    property string text
    property string detail
    property string actionText
    // The line goes on to the next point.
    property bool isLast: false
    property string accessibleName: KarvelloDesign.spoken([title, figure, date, text, detail])
    readonly property color tint: [KarvelloDesign.ink3, KarvelloDesign.accent, KarvelloDesign.heatmapMid, KarvelloDesign.caution,
        KarvelloDesign.safe, KarvelloDesign.review][kind]

    signal actionRequested()

    implicitWidth: 480
    implicitHeight: Math.ceil(column.implicitHeight) + (isLast ? 0 : KarvelloDesign.spacing16)

    Accessible.role: Accessible.ListItem
    Accessible.name: accessibleName

    Rectangle {
        id: dot
        y: Math.round((heading.height - height) / 2)
        width: 9
        height: 9
        radius: 4.5
        color: control.kind === KarvelloTimelineRow.PresentState ? "transparent" : control.tint
        border.width: control.kind === KarvelloTimelineRow.PresentState ? 2 : 0
        border.color: control.tint
    }
    Rectangle {
        visible: !control.isLast
        x: 4
        anchors.top: dot.bottom
        anchors.topMargin: KarvelloDesign.spacing4
        anchors.bottom: parent.bottom
        anchors.bottomMargin: KarvelloDesign.spacing4 - dot.y
        width: 1
        color: KarvelloDesign.line
    }
    ColumnLayout {
        id: column
        x: 9 + KarvelloDesign.spacing12
        width: parent.width - x
        spacing: 2

        RowLayout {
            id: heading
            spacing: KarvelloDesign.spacing8

            KarvelloText {
                Layout.fillWidth: true
                Layout.maximumWidth: Math.ceil(implicitWidth)
                text: control.title
                emphasis: KarvelloText.Strong
                color: KarvelloDesign.ink
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            KarvelloText {
                text: control.date
                textStyle: KarvelloDesign.label
                color: KarvelloDesign.ink4
                Accessible.ignored: true
            }
            Item { Layout.fillWidth: true }
            KarvelloText {
                text: control.figure
                emphasis: KarvelloText.Strong
                color: KarvelloDesign.ink
                Accessible.ignored: true
            }
        }
        KarvelloText {
            Layout.fillWidth: true
            Layout.rightMargin: KarvelloDesign.spacing32
            visible: text !== ""
            text: control.text
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        RowLayout {
            spacing: KarvelloDesign.spacing8

            KarvelloText {
                Layout.fillWidth: true
                text: control.detail
                textStyle: KarvelloDesign.label
                color: control.kind === KarvelloTimelineRow.Pending ? KarvelloDesign.caution
                    : control.kind === KarvelloTimelineRow.LowSpace ? KarvelloDesign.review : KarvelloDesign.ink3
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            KarvelloButton {
                Layout.topMargin: -6
                Layout.bottomMargin: -6
                Layout.rightMargin: -rightPadding
                visible: text !== ""
                kind: KarvelloButton.Link
                size: KarvelloButton.Small
                text: control.actionText
                onClicked: control.actionRequested()
            }
        }
    }
}
