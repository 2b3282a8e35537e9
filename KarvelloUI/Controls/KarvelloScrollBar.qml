import QtQuick
import QtQuick.Templates as T
import Karvello.Design

// Shows where the page or the list stands, and moves it. Assistants and the keyboard have other ways.
T.ScrollBar {
    id: control

    readonly property int thickness: hovered || pressed ? 8 : 4

    implicitWidth: 16
    implicitHeight: 16
    padding: KarvelloDesign.spacing4
    minimumSize: 0.05
    visible: policy !== T.ScrollBar.AlwaysOff && size < 1
    hoverEnabled: true
    Accessible.ignored: true

    contentItem: Item {
        Rectangle {
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            width: control.vertical ? control.thickness : parent.width
            height: control.vertical ? parent.height : control.thickness
            radius: Math.min(width, height) / 2
            color: control.pressed ? KarvelloDesign.ink4 : KarvelloDesign.lineStrong
        }
    }
}
