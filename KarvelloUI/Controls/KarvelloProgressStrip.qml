pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Karvello.Design

// Work that is under way: what it is, where it is, how far, a way to end it, and its figures.
//
// Qt 6.4 cannot announce a sentence. An alert that changes its name is the nearest to it: `spokenProgress` changes at the
// start, with each tenth and at the end, and with nothing in between.
Rectangle {
    id: control

    property string title
    // "Visiting ~/.cache/pip"
    property string visiting
    // Between 0 and 1; below 0 it is not known, and there is no percentage.
    property real progress: -1
    property string progressText
    property string cancelText
    property bool canCancel: true
    property bool isCancelling: false
    // List of { value, label }.
    property var figures: []
    // Cells stay: a layout that is hidden while its cells go keeps looking at them, and the program crashes in it (Qt 6.4).
    property int cellCount: 0
    onFiguresChanged: cellCount = Math.max(cellCount, figures.length)
    readonly property bool isKnown: progress >= 0
    readonly property int tenth: isKnown ? Math.floor(Math.min(1, progress) * 10 + 0.000001) : -1
    property string spokenProgress
    readonly property Item cancelButton: cancel

    signal cancelRequested()

    function focusCancel() {
        cancel.forceActiveFocus(Qt.ShortcutFocusReason)
    }
    function speak() {
        spokenProgress = KarvelloDesign.spoken([title, isKnown ? progressText : ""])
    }

    implicitWidth: 640
    implicitHeight: Math.ceil(column.implicitHeight) + 2
    radius: KarvelloDesign.cardRadius
    color: KarvelloDesign.elevated1
    border.color: KarvelloDesign.line

    Accessible.role: Accessible.Grouping
    Accessible.name: title
    Component.onCompleted: speak()
    onTenthChanged: later.restart()
    onTitleChanged: later.restart()

    // The figure and its text come one after the other.
    Timer {
        id: later
        interval: 0
        onTriggered: control.speak()
    }
    Item {
        objectName: "announcement"
        width: 1
        height: 1
        Accessible.role: Accessible.AlertMessage
        Accessible.name: control.spokenProgress
    }
    ColumnLayout {
        id: column
        x: 1
        y: 1
        width: parent.width - 2
        spacing: 0

        ColumnLayout {
            Layout.margins: KarvelloDesign.spacing20
            spacing: KarvelloDesign.spacing12

            RowLayout {
                spacing: KarvelloDesign.spacing16

                ColumnLayout {
                    spacing: 2
                    KarvelloText {
                        Layout.fillWidth: true
                        text: control.title
                        textStyle: KarvelloDesign.heading
                        color: KarvelloDesign.ink
                        wrapMode: Text.Wrap
                        Accessible.role: Accessible.Heading
                    }
                    KarvelloText {
                        Layout.fillWidth: true
                        text: control.visiting
                        textStyle: KarvelloDesign.small
                        color: KarvelloDesign.ink3
                        elide: Text.ElideMiddle
                    }
                }
                KarvelloText {
                    visible: control.isKnown
                    text: control.progressText
                    textStyle: KarvelloDesign.title
                    color: KarvelloDesign.ink
                }
                KarvelloButton {
                    id: cancel
                    visible: text !== ""
                    text: control.cancelText
                    iconName: "close"
                    isBusy: control.isCancelling
                    enabled: control.canCancel && !control.isCancelling
                    onClicked: control.cancelRequested()
                }
            }
            KarvelloProgressBar {
                Layout.fillWidth: true
                value: Math.max(0, Math.min(1, control.progress))
                indeterminate: !control.isKnown
                tint: control.isKnown ? KarvelloDesign.accent : KarvelloDesign.lineStrong
                accessibleName: control.title
            }
        }
        Rectangle {
            Layout.fillWidth: true
            implicitHeight: 1
            visible: control.figures.length > 0
            color: KarvelloDesign.line
        }
        RowLayout {
            Layout.margins: KarvelloDesign.spacing16
            Layout.leftMargin: KarvelloDesign.spacing20
            Layout.rightMargin: KarvelloDesign.spacing20
            visible: control.figures.length > 0
            spacing: KarvelloDesign.spacing20

            Repeater {
                model: control.cellCount
                RowLayout {
                    id: cell
                    required property int index
                    readonly property var modelData: control.figures[index] ?? ({ value: "", label: "" })
                    visible: index < control.figures.length
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    spacing: KarvelloDesign.spacing20

                    Rectangle {
                        Layout.fillHeight: true
                        implicitWidth: 1
                        visible: cell.index > 0
                        color: KarvelloDesign.line
                    }
                    ColumnLayout {
                        spacing: 0
                        Accessible.role: Accessible.StaticText
                        Accessible.name: KarvelloDesign.spoken([cell.modelData.label, cell.modelData.value])

                        KarvelloText {
                            Layout.fillWidth: true
                            text: cell.modelData.value
                            textStyle: KarvelloDesign.title
                            color: KarvelloDesign.ink
                            Accessible.ignored: true
                        }
                        KarvelloText {
                            Layout.fillWidth: true
                            text: cell.modelData.label
                            textStyle: KarvelloDesign.small
                            color: KarvelloDesign.ink3
                            Accessible.ignored: true
                        }
                    }
                }
            }
        }
    }
}
