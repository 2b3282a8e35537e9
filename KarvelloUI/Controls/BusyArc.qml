pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Shapes
import Karvello.Design

// Something is under way: an arc that turns, or three still dots where motion is unwanted.
Item {
    id: control

    property color tint: KarvelloDesign.ink3
    property int size: 16
    readonly property int side: 2 * Math.round(size * KarvelloDesign.textFactor / 2)

    implicitWidth: side
    implicitHeight: side
    Accessible.ignored: true

    Shape {
        anchors.fill: parent
        visible: !KarvelloDesign.reducedMotion
        ShapePath {
            strokeColor: control.tint
            strokeWidth: 1.5
            fillColor: "transparent"
            capStyle: ShapePath.RoundCap
            PathAngleArc {
                centerX: control.side / 2
                centerY: control.side / 2
                radiusX: control.side / 2 - 2
                radiusY: radiusX
                startAngle: 0
                sweepAngle: 270
            }
        }
        RotationAnimation on rotation {
            running: control.visible && !KarvelloDesign.reducedMotion
            from: 0
            to: 360
            duration: 1000
            loops: Animation.Infinite
        }
    }
    Row {
        anchors.centerIn: parent
        spacing: 2
        visible: KarvelloDesign.reducedMotion
        Repeater {
            model: 3
            Rectangle {
                width: 3
                height: 3
                radius: 1.5
                color: control.tint
            }
        }
    }
}
