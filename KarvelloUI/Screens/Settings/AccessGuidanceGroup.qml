pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Settings

// What kept scans out, and the steps against it, one below the other along a line.
SettingsGroup {
    id: control

    required property AccessGuidanceModel group

    title: group.title
    headItem: KarvelloButton {
        objectName: "privacySettings"
        visible: control.group.hasPrivacySettings
        size: KarvelloButton.Small
        text: control.group.privacySettingsText
        onClicked: control.group.openPrivacySettings()
    }

    SettingsParagraph {
        objectName: "guidanceText"
        text: control.group.text
    }
    KarvelloText {
        Layout.fillWidth: true
        Layout.leftMargin: KarvelloDesign.spacing20
        Layout.rightMargin: KarvelloDesign.spacing20
        visible: text !== ""
        text: control.group.stepsTitle
        emphasis: KarvelloText.Strong
        color: KarvelloDesign.ink
        wrapMode: Text.Wrap
        Accessible.role: Accessible.Heading
    }
    SettingsParagraph {
        objectName: "stepsText"
        Layout.topMargin: 0
        visible: text !== ""
        text: control.group.stepsText
    }
    // No layout: one that is hidden while its items go keeps looking at them, and the program crashes in it (Qt 6.4).
    Column {
        id: list
        Layout.fillWidth: true
        Layout.leftMargin: KarvelloDesign.spacing20
        Layout.rightMargin: KarvelloDesign.spacing20
        Layout.bottomMargin: KarvelloDesign.spacing8
        visible: control.group.steps.length > 0

        Repeater {
            id: steps
            model: control.group.steps

            GuidanceStep {
                required property int index
                required property var modelData

                objectName: "guidanceStep"
                width: list.width
                step: modelData
                isLast: index === steps.count - 1
                copyText: control.group.copyText
                onCopyRequested: control.group.copySamples(modelData.number)
            }
        }
    }
}
