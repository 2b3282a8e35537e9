import QtQuick
import QtQuick.Layouts
import Karvello.Design

// One step: what to do, where, what to mind, and how far one is. The choice goes below where it has no room beside the text.
Item {
    id: control

    required property string step
    required property int number
    required property string title
    required property string detail
    required property string path
    required property string safetyNote
    required property string actor
    required property bool isElsewhere
    required property string status
    required property bool isDone
    required property string pickerName
    property var statuses: []
    readonly property bool isStacked: width - picker.implicitWidth < 460 * KarvelloDesign.textFactor

    signal picked(string status)

    implicitWidth: 640
    implicitHeight: Math.ceil(grid.implicitHeight) + 2 * KarvelloDesign.spacing16

    Accessible.role: Accessible.ListItem
    Accessible.name: KarvelloDesign.spoken([number, title, actor, detail, path, safetyNote])

    Rectangle {
        width: parent.width
        height: 1
        color: KarvelloDesign.lineSoft
    }
    GridLayout {
        id: grid
        x: KarvelloDesign.spacing20
        y: KarvelloDesign.spacing16
        width: parent.width - 2 * x
        columns: control.isStacked ? 1 : 2
        columnSpacing: KarvelloDesign.spacing16
        rowSpacing: KarvelloDesign.spacing12

        RowLayout {
            spacing: KarvelloDesign.spacing12

            Rectangle {
                Layout.alignment: Qt.AlignTop
                implicitWidth: 2 * Math.round(16 * KarvelloDesign.textFactor)
                implicitHeight: implicitWidth
                radius: KarvelloDesign.controlRadius
                color: control.isDone ? KarvelloDesign.accentSoft : KarvelloDesign.elevated3

                KarvelloText {
                    anchors.centerIn: parent
                    visible: !control.isDone
                    text: control.number
                    emphasis: KarvelloText.Strong
                    Accessible.ignored: true
                }
                KarvelloIcon {
                    anchors.centerIn: parent
                    visible: control.isDone
                    name: "check"
                    tint: KarvelloDesign.accent
                }
            }
            ColumnLayout {
                spacing: 2

                RowLayout {
                    spacing: KarvelloDesign.spacing8
                    KarvelloText {
                        Layout.fillWidth: true
                        Layout.maximumWidth: Math.ceil(implicitWidth)
                        text: control.title
                        emphasis: KarvelloText.Strong
                        color: KarvelloDesign.ink
                        Accessible.ignored: true
                    }
                    KarvelloPill {
                        text: control.actor
                        kind: control.isElsewhere ? KarvelloDesign.NeutralPill : KarvelloDesign.AccentPill
                        Accessible.ignored: true
                    }
                    Item { Layout.fillWidth: true }
                }
                KarvelloText {
                    Layout.fillWidth: true
                    text: control.detail
                    wrapMode: Text.Wrap
                    Accessible.ignored: true
                }
                KarvelloText {
                    Layout.fillWidth: true
                    text: control.path
                    textStyle: KarvelloDesign.small
                    emphasis: KarvelloText.Medium
                    wrapMode: Text.Wrap
                    Accessible.ignored: true
                }
                RowLayout {
                    spacing: KarvelloDesign.spacing4
                    KarvelloIcon {
                        Layout.alignment: Qt.AlignTop
                        Layout.topMargin: 2
                        name: "info"
                        size: 12
                    }
                    KarvelloText {
                        Layout.fillWidth: true
                        text: control.safetyNote
                        textStyle: KarvelloDesign.small
                        color: KarvelloDesign.ink3
                        wrapMode: Text.Wrap
                        Accessible.ignored: true
                    }
                }
            }
        }
        KarvelloPicker {
            id: picker
            objectName: "status" + control.number
            Layout.alignment: Qt.AlignTop
            Layout.leftMargin: control.isStacked ? 2 * Math.round(16 * KarvelloDesign.textFactor) + KarvelloDesign.spacing12 : 0
            choices: control.statuses
            currentValue: control.status
            accessibleName: control.pickerName
            maximumWidth: control.width - 2 * KarvelloDesign.spacing20
            onPicked: value => control.picked(value)
        }
    }
}
