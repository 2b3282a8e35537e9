import QtQuick
import QtQuick.Templates as T

// The tool tip of the control that it is in, also while that is disabled: then the pointer is watched from the control's
// parent, which is enabled still. Without a text there is none.
Item {
    id: control

    required property Item target
    property string text
    readonly property bool isOver: target.enabled ? (target as T.Control)?.hovered ?? false
        : pointer.hovered && target.contains(target.mapFromItem(target.parent, pointer.point.position))
    readonly property bool isShown: isOver && text !== ""

    width: target.width
    height: target.height
    Accessible.ignored: true
    onIsShownChanged: isShown ? tip.setSource("KarvelloToolTip.qml", { text: control.text, visible: true }) : tip.setSource("")

    HoverHandler {
        id: pointer
        parent: control.target.parent
        enabled: !control.target.enabled && control.text !== ""
    }
    Loader {
        id: tip
        anchors.fill: parent
    }
}
