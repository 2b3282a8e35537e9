import QtQuick
import Karvello.Design

// Shows where the keyboard is. Two pixels outside of the control that it belongs to, or inside with a positive margin.
Rectangle {
    required property bool isShown
    property int distance: -4

    anchors.fill: parent
    anchors.margins: distance
    radius: KarvelloDesign.controlRadius + 3
    color: "transparent"
    border.width: 2
    border.color: KarvelloDesign.accent
    visible: isShown
}
