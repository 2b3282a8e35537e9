pragma ComponentBehavior: Bound
import QtQuick
import Karvello.Design

// One of several, as a menu in a menu. The choices are { value, text }.
KarvelloMenu {
    id: control

    property var choices: []
    property string currentValue

    signal picked(string value)

    accessibleName: title

    Instantiator {
        model: control.choices
        delegate: KarvelloMenuItem {
            required property var modelData
            text: modelData.text
            iconName: modelData.value === control.currentValue ? "check" : ""
            onTriggered: control.picked(modelData.value)
        }
        onObjectAdded: (index, object) => control.insertItem(index, object)
        onObjectRemoved: (index, object) => control.removeItem(object)
    }
}
