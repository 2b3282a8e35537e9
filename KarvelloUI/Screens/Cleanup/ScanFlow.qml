pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Cleanup

// Where in its course a cleanup is while the scan runs: what is done, what goes on, what comes.
KarvelloCard {
    id: control

    required property CleanupScreenModel screen

    readonly property var steps: [screen.texts.flowAccess, screen.texts.flowScan, screen.texts.flowReview]

    title: screen.texts.flow

    Repeater {
        // By their number: rows that are made anew in another language leave the layout with ones that are gone.
        model: control.steps.length

        RowLayout {
            id: step
            required property int index
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
                text: control.steps[step.index]
                emphasis: step.index === 1 ? KarvelloText.Medium : KarvelloText.Plain
                color: step.index === 1 ? KarvelloDesign.ink : step.index === 0 ? KarvelloDesign.ink2 : KarvelloDesign.ink3
                wrapMode: Text.Wrap
            }
        }
    }
}
