pragma ComponentBehavior: Bound
import QtQuick
import Karvello.Design
import Karvello.Screens.Settings

SettingsGroup {
    id: control

    required property SettingsFoldersModel group
    required property string closeName
    required property bool showsFailure

    title: group.title
    headItem: KarvelloButton {
        objectName: "addFolder"
        size: KarvelloButton.Small
        iconName: "plus"
        text: control.group.addText
        onClicked: control.group.add()
    }

    SettingsParagraph { text: control.group.text }
    SettingsRule {}
    SettingsFailure {
        objectName: "foldersFailure"
        text: control.showsFailure ? control.group.errorText : ""
        closeName: control.closeName
        onCloseRequested: control.group.dismissError()
    }
    SettingsParagraph {
        objectName: "foldersEmpty"
        visible: control.group.count === 0
        text: control.group.emptyText
        color: KarvelloDesign.ink2
    }
    SettingsList {
        objectName: "folders"
        accessibleName: control.group.title
        model: control.group.folders

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
}
