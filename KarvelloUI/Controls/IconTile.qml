import QtQuick
import Karvello.Design

// The square ground under an icon in lists, dialogs and empty states.
Rectangle {
    id: control

    property alias name: icon.name
    property alias tint: icon.tint
    property alias iconSize: icon.size
    property int size: 32

    implicitWidth: 2 * Math.round(size * KarvelloDesign.textFactor / 2)
    implicitHeight: implicitWidth
    radius: KarvelloDesign.controlRadius
    color: KarvelloDesign.elevated3

    KarvelloIcon {
        id: icon
        anchors.centerIn: parent
        tint: KarvelloDesign.ink2
        size: 18
    }
}
