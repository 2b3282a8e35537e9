import QtQuick
import QtQuick.Layouts
import Karvello.Design

// The question before anything moves or is asked to quit. It is open while its model has a question, and only its own button
// says yes: however else it closes, the answer is no.
KarvelloDialog {
    id: control

    // A ConfirmationModel.
    required property var confirmation
    readonly property bool isAsking: confirmation.isOpen

    title: confirmation.title
    message: confirmation.message
    iconName: confirmation.iconName
    acceptText: confirmation.acceptText
    cancelText: confirmation.cancelText
    onIsAskingChanged: isAsking ? open() : close()
    Component.onCompleted: {
        if (isAsking)
            open()
    }
    onAccepted: confirmation.accept()
    onRejected: confirmation.cancel()

    RowLayout {
        visible: control.confirmation.previewTitle !== ""
        spacing: KarvelloDesign.spacing8

        KarvelloText {
            Layout.fillWidth: true
            text: control.confirmation.previewTitle
            emphasis: KarvelloText.Strong
            color: KarvelloDesign.ink
            Accessible.role: Accessible.Heading
        }
        // No layout: one that is hidden while its items go keeps looking at them, and the program crashes in it (Qt 6.4).
        Row {
            spacing: KarvelloDesign.spacing8
            Repeater {
                model: control.confirmation.pills
                KarvelloPill {
                    required property var modelData
                    text: modelData.text
                    kind: modelData.kind
                }
            }
        }
    }
    ColumnLayout {
        visible: control.confirmation.lines.length > 0
        spacing: 0

        Rule {}
        Column {
            Layout.fillWidth: true

            Repeater {
                model: control.confirmation.lines
                ColumnLayout {
                    id: line
                    required property var modelData
                    width: parent ? parent.width : 0
                    spacing: 0

                    RowLayout {
                        Layout.minimumHeight: 35
                        spacing: KarvelloDesign.spacing12
                        Accessible.role: Accessible.StaticText
                        Accessible.name: KarvelloDesign.spoken([line.modelData.name, line.modelData.count, line.modelData.size])

                        KarvelloText {
                            Layout.fillWidth: true
                            text: line.modelData.name
                            emphasis: KarvelloText.Medium
                            color: KarvelloDesign.ink
                            Accessible.ignored: true
                        }
                        KarvelloText {
                            text: line.modelData.count
                            textStyle: KarvelloDesign.small
                            color: KarvelloDesign.ink3
                            Accessible.ignored: true
                        }
                        KarvelloText {
                            Layout.preferredWidth: Math.max(Math.round(72 * KarvelloDesign.textFactor), Math.ceil(implicitWidth))
                            text: line.modelData.size
                            emphasis: KarvelloText.Strong
                            color: KarvelloDesign.ink
                            horizontalAlignment: Text.AlignRight
                            Accessible.ignored: true
                        }
                    }
                    Rule {}
                }
            }
        }
        KarvelloText {
            Layout.topMargin: KarvelloDesign.spacing8
            visible: text !== ""
            text: control.confirmation.moreLines
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
        }
    }
    KarvelloBanner {
        Layout.fillWidth: true
        visible: text !== ""
        kind: KarvelloBanner.Caution
        iconName: "hidden"
        text: control.confirmation.hiddenItemsWarning
    }
    KarvelloText {
        Layout.fillWidth: true
        Layout.bottomMargin: KarvelloDesign.spacing4
        visible: text !== ""
        text: control.confirmation.footnote
        textStyle: KarvelloDesign.small
        color: KarvelloDesign.ink3
        wrapMode: Text.Wrap
    }

    component Rule: Rectangle {
        Layout.fillWidth: true
        implicitHeight: 1
        color: KarvelloDesign.lineSoft
    }
}
