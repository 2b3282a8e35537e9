import QtQuick
import Karvello.Design
import Karvello.Screens.Settings

SettingsGroup {
    id: control

    required property SettingsScanModel group
    required property string closeName
    required property bool showsFailure

    title: group.title

    SettingsRow {
        id: modeRow
        name: control.group.modeTitle
        text: control.group.modeText

        KarvelloPicker {
            objectName: "scanMode"
            accessibleName: control.group.modeTitle
            maximumWidth: modeRow.slotMaximumWidth
            choices: control.group.modes
            currentValue: control.group.mode
            enabled: control.group.isModeEnabled
            disabledReason: control.group.modeDisabledReason
            onPicked: value => control.group.chooseMode(value)
        }
    }
    SettingsRow {
        name: control.group.accessTitle
        text: control.group.accessText
        isLast: !failure.visible

        KarvelloButton {
            objectName: "grantAccess"
            size: KarvelloButton.Small
            kind: control.group.isGrantNeeded ? KarvelloButton.Tonal : KarvelloButton.Outline
            text: control.group.grantText
            onClicked: control.group.grant()
        }
        KarvelloButton {
            objectName: "revokeAccess"
            visible: control.group.isGranted
            size: KarvelloButton.Small
            kind: KarvelloButton.Quiet
            text: control.group.revokeText
            onClicked: control.group.revoke()
        }
    }
    SettingsFailure {
        id: failure
        objectName: "accessFailure"
        text: control.showsFailure ? control.group.errorText : ""
        closeName: control.closeName
        onCloseRequested: control.group.dismissError()
    }
}
