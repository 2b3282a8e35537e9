pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Cleanup

// What an open row tells: where it lies, why it is listed, what to look at first, and what can be done besides moving it.
ColumnLayout {
    id: control

    required property CleanupScreenModel screen
    required property int row
    // They are of the language on show.
    readonly property var facts: screen.texts ? screen.factsOf(row) : []
    readonly property var snoozes: screen.texts ? screen.snoozesOf(row) : []

    spacing: KarvelloDesign.spacing8

    // No layout: one that is hidden while its items go keeps looking at them, and the program crashes in it (Qt 6.4).
    Column {
        id: list
        Layout.fillWidth: true
        spacing: KarvelloDesign.spacing8

        Repeater {
            model: control.facts
            ColumnLayout {
                id: fact
                required property var modelData
                width: list.width
                spacing: 0
                Accessible.role: Accessible.StaticText
                Accessible.name: KarvelloDesign.spoken([modelData.name, modelData.value])

                KarvelloText {
                    Layout.fillWidth: true
                    text: fact.modelData.name
                    textStyle: KarvelloDesign.label
                    wrapMode: Text.Wrap
                    color: KarvelloDesign.ink4
                    Accessible.ignored: true
                }
                KarvelloText {
                    Layout.fillWidth: true
                    Layout.maximumWidth: 820
                    text: fact.modelData.value
                    textStyle: KarvelloDesign.small
                    color: KarvelloDesign.ink2
                    // A path has no blanks to break at.
                    wrapMode: Text.WrapAtWordBoundaryOrAnywhere
                    Accessible.ignored: true
                }
            }
        }
    }
    Flow {
        Layout.fillWidth: true
        Layout.bottomMargin: KarvelloDesign.spacing8
        spacing: KarvelloDesign.spacing8

        KarvelloButton {
            size: KarvelloButton.Small
            iconName: "folder"
            text: control.screen.texts.showInFileManager
            onClicked: control.screen.reveal(control.row)
        }
        Repeater {
            model: control.snoozes
            KarvelloButton {
                required property var modelData
                size: KarvelloButton.Small
                iconName: "hidden"
                text: modelData.text
                enabled: !control.screen.isBusy
                onClicked: control.screen.snooze(control.row, modelData.value)
            }
        }
    }
}
