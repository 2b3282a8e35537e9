import QtQuick
import QtQuick.Layouts

// The tool tip of a control, also of one that is disabled: the pointer is watched from beside it, where the place is enabled
// still. Without a text there is none. It has no size, so that the layouts of its neighbours pass over it.
Item {
    id: control

    required property Item target
    property string text

    parent: target.parent
    visible: target.visible && text !== ""
    Layout.maximumWidth: 0
    Layout.maximumHeight: 0
    Accessible.ignored: true

    Item {
        x: control.target.x - control.x
        y: control.target.y - control.y
        width: control.target.width
        height: control.target.height

        HoverHandler { id: pointer }
        Loader {
            readonly property bool isShown: pointer.hovered && control.text !== ""
            anchors.fill: parent
            onIsShownChanged: isShown ? setSource("KarvelloToolTip.qml", { text: control.text, visible: true }) : setSource("")
        }
    }
}
