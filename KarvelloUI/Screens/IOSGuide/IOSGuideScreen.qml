// Parts of this file know the ids around them. The pragma that would say so breaks loaders and inline parts in Qt 6.4.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.IOSGuide

// What people can do by hand on their iPhone, step by step, and how far they say to be.
KarvelloPage {
    id: control

    required property IOSGuideScreenModel screen

    title: screen.title
    subtitle: screen.subtitle
    actions: [
        KarvelloButton {
            objectName: "resetChecklist"
            kind: KarvelloButton.Quiet
            text: control.screen.resetTitle
            enabled: control.screen.canReset
            onClicked: control.screen.reset()
        },
        KarvelloButton {
            objectName: "back"
            text: control.screen.backTitle
            accessibleName: control.screen.backName
            onClicked: control.screen.goBack()
        }
    ]

    Shortcut {
        sequences: [StandardKey.Back]
        enabled: control.visible
        onActivated: control.screen.goBack()
    }
    KarvelloBanner {
        Layout.fillWidth: true
        text: control.screen.notice
    }
    KarvelloBanner {
        objectName: "checklistFailure"
        Layout.fillWidth: true
        visible: text !== ""
        kind: KarvelloBanner.Review
        text: control.screen.failureText
    }
    Rectangle {
        Layout.fillWidth: true
        implicitHeight: Math.ceil(list.implicitHeight) + 2
        radius: KarvelloDesign.cardRadius
        color: KarvelloDesign.elevated1
        border.color: KarvelloDesign.line

        ColumnLayout {
            id: list
            x: 1
            y: 1
            width: parent.width - 2
            spacing: 0

            RowLayout {
                Layout.margins: KarvelloDesign.spacing20
                spacing: KarvelloDesign.spacing16

                ColumnLayout {
                    spacing: 2
                    KarvelloText {
                        objectName: "checklistProgress"
                        Layout.fillWidth: true
                        text: control.screen.progressText
                        textStyle: KarvelloDesign.heading
                        color: KarvelloDesign.ink
                        wrapMode: Text.Wrap
                    }
                    KarvelloText {
                        Layout.fillWidth: true
                        text: control.screen.storageNote
                        textStyle: KarvelloDesign.small
                        color: KarvelloDesign.ink3
                        wrapMode: Text.Wrap
                    }
                }
                KarvelloProgressBar {
                    Layout.preferredWidth: 200
                    value: control.screen.progress
                    accessibleName: control.screen.progressText
                }
            }
            Repeater {
                model: control.screen.steps
                IOSGuideStep {
                    Layout.fillWidth: true
                    statuses: control.screen.statuses
                    onPicked: status => control.screen.setStatus(step, status)
                }
            }
        }
    }
    // On a tall window the cards stay together at the top.
    Item { Layout.fillHeight: true }
}
