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
    ColumnLayout {
        Layout.leftMargin: KarvelloDesign.spacing20
        Layout.rightMargin: KarvelloDesign.spacing20
        Layout.bottomMargin: KarvelloDesign.spacing8
        visible: control.group.steps.length > 0
        spacing: 0

        Repeater {
            id: steps
            // By their number: steps that are made anew in another language leave the layout with ones that are gone.
            model: control.group.steps.length

            GuidanceStep {
                required property int index

                objectName: "guidanceStep"
                Layout.fillWidth: true
                step: control.group.steps[index]
                isLast: index === steps.count - 1
                copyText: control.group.copyText
                onCopyRequested: control.group.copySamples(step.number)
            }
        }
    }
}
