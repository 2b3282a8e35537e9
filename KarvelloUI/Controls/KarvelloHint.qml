import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T

// The tool tip of a control, also of one that is disabled: the pointer is watched from beside it, where the place is enabled
// still. Without a text there is none. It has no size, so that the layouts of its neighbours pass over it.
Item {
    id: control

    required property Item target
    property string text
    // An enabled control knows by itself, and has to get the pointer first.
    readonly property bool isOver: target.enabled ? (target as T.Control)?.hovered ?? false : pointer.hovered

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

        HoverHandler {
            id: pointer
            enabled: !control.target.enabled
        }
        Loader {
            readonly property bool isShown: control.isOver && control.text !== ""
            anchors.fill: parent
            onIsShownChanged: isShown ? setSource("KarvelloToolTip.qml", { text: control.text, visible: true }) : setSource("")
        }
    }
}
