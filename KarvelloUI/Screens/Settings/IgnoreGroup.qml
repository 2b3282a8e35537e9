pragma ComponentBehavior: Bound
import QtQuick
import Karvello.Design
import Karvello.Screens.Settings

SettingsGroup {
    id: control

    required property SettingsIgnoreModel group
    required property string closeName
    required property bool showsFailure

    title: group.title
    headItem: KarvelloButton {
        objectName: "clearIgnoreList"
        visible: control.group.count > 0
        size: KarvelloButton.Small
        kind: KarvelloButton.Quiet
        text: control.group.clearText
        onClicked: control.group.clear()
    }

    SettingsParagraph { text: control.group.text }
    SettingsRule {}
    SettingsFailure {
        objectName: "ignoreFailure"
        text: control.showsFailure ? control.group.errorText : ""
        closeName: control.closeName
        onCloseRequested: control.group.dismissError()
    }
    SettingsParagraph {
        objectName: "ignoreListEmpty"
        visible: control.group.count === 0
        text: control.group.emptyText
        color: KarvelloDesign.ink2
    }
    SettingsList {
        objectName: "ignoreList"
        accessibleName: KarvelloDesign.spoken([control.group.title, control.group.countText])
        model: control.group.items

        delegate: SettingsListRow {
            id: row

            required property string size
            required property string duration

            required path
            width: ListView.view.width
            note: size
            line: duration

            KarvelloButton {
                objectName: "showAgain"
                focus: true
                focusPolicy: row.buttonFocusPolicy
                size: KarvelloButton.Small
                text: control.group.showAgainText
                Accessible.name: KarvelloDesign.spoken([text, row.path])
                onClicked: control.group.showAgain(row.index)
            }
        }
    }
}
