pragma ComponentBehavior: Bound
import QtQuick
import Karvello.Design
import Karvello.Screens.Settings

// What the user has hidden from the review.
SettingsListGroup {
    id: control

    required property SettingsIgnoreModel group

    model: group
    listName: "ignoreList"
    accessibleListName: KarvelloDesign.spoken([title, group.countText])
    headItem: KarvelloButton {
        objectName: "clearIgnoreList"
        visible: control.group.count > 0
        size: KarvelloButton.Small
        kind: KarvelloButton.Quiet
        text: control.group.clearText
        onClicked: control.group.clear()
    }

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
