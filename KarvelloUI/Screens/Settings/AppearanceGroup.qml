import QtQuick
import Karvello.Design
import Karvello.Screens.Settings

SettingsGroup {
    id: control

    required property SettingsAppearanceModel group

    title: group.title

    SettingsRow {
        id: languageRow
        name: control.group.languageTitle
        text: control.group.languageText

        KarvelloPicker {
            objectName: "language"
            accessibleName: control.group.languageTitle
            maximumWidth: languageRow.slotMaximumWidth
            choices: control.group.languages
            currentValue: control.group.language
            onPicked: value => control.group.chooseLanguage(value)
        }
    }
    SettingsRow {
        id: appearanceRow
        name: control.group.appearanceTitle
        text: control.group.appearanceText

        KarvelloPicker {
            objectName: "appearance"
            accessibleName: control.group.appearanceTitle
            maximumWidth: appearanceRow.slotMaximumWidth
            choices: control.group.appearances
            currentValue: control.group.appearance
            onPicked: value => control.group.chooseAppearance(value)
        }
    }
    SettingsRow {
        id: textSizeRow
        name: control.group.textSizeTitle
        text: control.group.textSizeText
        isLast: true

        KarvelloPicker {
            objectName: "textSize"
            accessibleName: control.group.textSizeTitle
            maximumWidth: textSizeRow.slotMaximumWidth
            choices: control.group.textSizes
            currentValue: control.group.textSize
            onPicked: value => control.group.chooseTextSize(value)
        }
    }
}
