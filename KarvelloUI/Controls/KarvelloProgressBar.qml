import QtQuick
import QtQuick.Templates as T
import Karvello.Design

// How much is done, or used. Without a known fraction it is a still piece: nothing here pretends to know.
T.ProgressBar {
    id: control

    property color tint: KarvelloDesign.accent
    property int thickness: 8
    property string accessibleName

    implicitWidth: 160
    implicitHeight: thickness

    KarvelloSpoken.role: Accessible.ProgressBar
    Accessible.name: accessibleName

    background: Rectangle {
        radius: height / 2
        color: KarvelloDesign.elevated3
    }
    contentItem: Item {
        Rectangle {
            // A round end needs its own width; a little of something is never nothing.
            readonly property real part: control.indeterminate ? 0.3 : control.visualPosition

            width: part > 0 ? Math.max(parent.height, part * parent.width) : 0
            height: parent.height
            radius: height / 2
            color: control.tint
            Behavior on width { NumberAnimation { duration: KarvelloDesign.shortDuration; easing.type: Easing.OutQuad } }
        }
    }
}
