import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Settings

// A group with a list: what it is for, what could not be stored, and its rows, of which more than fit scroll.
SettingsGroup {
    id: control

    required property SettingsListGroupModel model
    required property string closeName
    // One group at a time tells its failure.
    required property bool showsFailure
    property alias listName: view.objectName
    property alias accessibleListName: view.accessibleName
    property alias delegate: view.delegate

    title: model.title

    SettingsParagraph { text: control.model.text }
    SettingsRule {}
    SettingsFailure {
        objectName: control.listName + "Failure"
        text: control.showsFailure ? control.model.errorText : ""
        closeName: control.closeName
        onCloseRequested: control.model.dismissError()
    }
    SettingsParagraph {
        objectName: control.listName + "Empty"
        visible: control.model.count === 0
        text: control.model.emptyText
        color: KarvelloDesign.ink2
    }
    KarvelloRows {
        id: view
        Layout.fillWidth: true
        visible: count > 0
        maximumHeight: Math.round(400 * KarvelloDesign.textFactor)
        accessibleName: control.title
        model: control.model.rows
    }
}
