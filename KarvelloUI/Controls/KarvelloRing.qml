import QtQuick
import QtQuick.Shapes
import Karvello.Design

// A share of a whole as a ring, with a word in its middle. A value below 0, or none at all, leaves the ring empty.
Item {
    id: control

    property real value: -1
    // What assistants read beside `value`.
    readonly property real from: 0
    readonly property real to: 1
    property string text
    property string accessibleName
    property color tint: KarvelloDesign.accent
    property real thickness: 6
    readonly property real share: value > 0 ? Math.min(value, 1) : 0
    readonly property real arcRadius: Math.min(width, height) / 2 - thickness / 2

    implicitWidth: 2 * Math.round(36 * KarvelloDesign.textFactor)
    implicitHeight: implicitWidth

    Accessible.role: Accessible.ProgressBar
    Accessible.name: accessibleName
    Accessible.description: text

    Shape {
        anchors.fill: parent
        ShapePath {
            strokeColor: KarvelloDesign.elevated3
            strokeWidth: control.thickness
            fillColor: "transparent"
            PathAngleArc {
                centerX: control.width / 2
                centerY: control.height / 2
                radiusX: control.arcRadius
                radiusY: control.arcRadius
                sweepAngle: 360
            }
        }
        ShapePath {
            strokeColor: control.share > 0 ? control.tint : "transparent"
            strokeWidth: control.thickness
            fillColor: "transparent"
            capStyle: ShapePath.RoundCap
            PathAngleArc {
                centerX: control.width / 2
                centerY: control.height / 2
                radiusX: control.arcRadius
                radiusY: control.arcRadius
                startAngle: -90
                sweepAngle: 360 * control.share
            }
        }
    }
    KarvelloText {
        anchors.centerIn: parent
        width: Math.min(implicitWidth, 2 * (control.arcRadius - control.thickness))
        text: control.text
        textStyle: KarvelloDesign.heading
        color: KarvelloDesign.ink
        Accessible.ignored: true
    }
}
