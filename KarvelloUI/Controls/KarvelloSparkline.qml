import QtQuick
import QtQuick.Shapes
import Karvello.Design

// The course of a figure between 0 and 1, the latest 24 samples. It is the picture of what the words beside it say, and
// not spoken. With fewer than two samples there is a word in its place.
Item {
    id: control

    property list<real> samples
    property string emptyText
    property color tint: KarvelloDesign.accent
    property real lineWidth: 1.5
    readonly property int mostSamples: 24
    readonly property int inset: 3
    readonly property bool hasCourse: points.length > 1
    // From the left to the right edge, so far inside that neither the line nor its dot is cut.
    readonly property var points: {
        const shown = []
        const first = Math.max(0, samples.length - mostSamples)
        for (let index = first; index < samples.length; ++index) {
            if (isFinite(samples[index]))
                shown.push(Math.max(0, Math.min(1, samples[index])))
        }
        const step = (width - 2 * inset) / Math.max(1, shown.length - 1)
        return shown.map((value, index) => Qt.point(inset + index * step, inset + (1 - value) * (height - 2 * inset)))
    }

    implicitWidth: 160
    implicitHeight: 44
    Accessible.ignored: true

    Shape {
        anchors.fill: parent
        visible: control.hasCourse

        ShapePath {
            strokeColor: "transparent"
            fillColor: Qt.alpha(control.tint, 0.1)
            PathPolyline {
                path: control.hasCourse
                    ? [Qt.point(control.points[0].x, control.height - control.inset), ...control.points,
                       Qt.point(control.points[control.points.length - 1].x, control.height - control.inset)]
                    : []
            }
        }
        ShapePath {
            strokeColor: control.tint
            strokeWidth: control.lineWidth
            fillColor: "transparent"
            joinStyle: ShapePath.RoundJoin
            capStyle: ShapePath.RoundCap
            PathPolyline { path: control.points }
        }
    }
    Rectangle {
        visible: control.hasCourse
        x: control.hasCourse ? control.points[control.points.length - 1].x - width / 2 : 0
        y: control.hasCourse ? control.points[control.points.length - 1].y - height / 2 : 0
        width: 5
        height: 5
        radius: 2.5
        color: control.tint
    }
    KarvelloText {
        anchors.bottom: parent.bottom
        width: parent.width
        visible: !control.hasCourse
        text: control.emptyText
        textStyle: KarvelloDesign.label
        color: KarvelloDesign.ink4
    }
}
