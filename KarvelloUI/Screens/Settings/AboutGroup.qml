import QtQuick
import Karvello.Design
import Karvello.Screens.Settings

SettingsGroup {
    id: control

    required property SettingsScreenModel screen

    title: screen.aboutTitle

    SettingsRow {
        name: control.screen.iosGuideTitle
        text: control.screen.iosGuideText

        KarvelloButton {
            objectName: "iosGuide"
            kind: KarvelloButton.Link
            text: control.screen.iosGuideButton
            onClicked: control.screen.openIOSGuide()
        }
    }
    SettingsRow {
        objectName: "about"
        name: control.screen.applicationName
        text: control.screen.applicationText
        isLast: true

        KarvelloText {
            objectName: "version"
            text: control.screen.versionText
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
        }
    }
}
