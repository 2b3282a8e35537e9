pragma ComponentBehavior: Bound
import QtQuick
import Karvello.Design
import Karvello.Screens.Settings

// The folders that the user added to the scan.
SettingsListGroup {
    id: control

    required property SettingsFoldersModel group

    model: group
    listName: "folders"
    headItem: KarvelloButton {
        objectName: "addFolder"
        size: KarvelloButton.Small
        iconName: "plus"
        text: control.group.addText
        onClicked: control.group.add()
    }

    delegate: SettingsListRow {
        id: row

        required property string added
        required property string problem

        required path
        width: ListView.view.width
        iconName: "folder"
        line: problem !== "" ? problem : added
        isCaution: problem !== ""

        KarvelloButton {
            objectName: "revealFolder"
            focus: true
            focusPolicy: row.buttonFocusPolicy
            kind: KarvelloButton.Quiet
            size: KarvelloButton.Small
            iconName: "arrow-right"
            accessibleName: control.group.revealText
            Accessible.name: KarvelloDesign.spoken([accessibleName, row.path])
            onClicked: control.group.reveal(row.index)
        }
        KarvelloButton {
            objectName: "removeFolder"
            focusPolicy: row.buttonFocusPolicy
            kind: KarvelloButton.Quiet
            size: KarvelloButton.Small
            iconName: "close"
            accessibleName: control.group.removeText
            Accessible.name: KarvelloDesign.spoken([accessibleName, row.path])
            onClicked: control.group.remove(row.index)
        }
    }
}
