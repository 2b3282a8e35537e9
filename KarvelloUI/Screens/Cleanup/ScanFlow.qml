pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Cleanup

// Where in its course a cleanup is while the scan runs: what is done, what goes on, what comes.
KarvelloCard {
    id: control

    required property CleanupScreenModel screen

    title: screen.texts.flow

    // No layout: one that is hidden while its items go keeps looking at them, and the program crashes in it (Qt 6.4).
    Column {
        id: list
        Layout.fillWidth: true
        spacing: KarvelloDesign.spacing12

        Repeater {
            model: [control.screen.texts.flowAccess, control.screen.texts.flowScan, control.screen.texts.flowReview]

            RowLayout {
                id: step
                required property string modelData
                required property int index
                width: list.width
                spacing: KarvelloDesign.spacing12

                Item {
                    implicitWidth: 16
                    implicitHeight: 16
                    KarvelloIcon {
                        visible: step.index === 0
                        name: "done"
                        tint: KarvelloDesign.accent
                    }
                    Rectangle {
                        visible: step.index > 0
                        anchors.centerIn: parent
                        width: 9
                        height: 9
                        radius: 5
                        color: step.index === 1 ? KarvelloDesign.accent : "transparent"
                        border.width: 1
                        border.color: step.index === 1 ? KarvelloDesign.accent : KarvelloDesign.ink4
                    }
                }
                KarvelloText {
                    Layout.fillWidth: true
                    text: step.modelData
                    emphasis: step.index === 1 ? KarvelloText.Medium : KarvelloText.Plain
                    color: step.index === 1 ? KarvelloDesign.ink : step.index === 0 ? KarvelloDesign.ink2 : KarvelloDesign.ink3
                    wrapMode: Text.Wrap
                }
            }
        }
    }
}
