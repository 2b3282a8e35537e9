import QtQuick

// The tool tip of a control, also of one that is disabled: the pointer is watched from a place that stays enabled. Without
// a text there is none.
Item {
    id: control

    required property Item target
    property string text
    // Says when besides a text it may be shown.
    property bool isWanted: true

    parent: target.parent
    x: target.x
    y: target.y
    width: target.width
    height: target.height
    visible: target.visible && text !== ""
    Accessible.ignored: true

    HoverHandler { id: pointer }
    Loader {
        id: tip
        readonly property bool isShown: pointer.hovered && control.isWanted && control.text !== ""
        anchors.fill: parent
        onIsShownChanged: isShown ? setSource("KarvelloToolTip.qml", { text: control.text, visible: true }) : setSource("")
    }
}
