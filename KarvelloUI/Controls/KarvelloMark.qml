import QtQuick
import QtQuick.Shapes
import Karvello.Design

// The mark of the brand: a K of two strokes on the accent. Decoration, since the name stands beside it.
Rectangle {
    id: control

    property int size: 24

    implicitWidth: size
    implicitHeight: size
    radius: size / 4
    color: KarvelloDesign.accent
    Accessible.ignored: true

    Shape {
        width: 24
        height: 24
        scale: control.size / 24
        transformOrigin: Item.TopLeft

        ShapePath {
            strokeColor: KarvelloDesign.accentForeground
            strokeWidth: 2
            fillColor: "transparent"
            capStyle: ShapePath.RoundCap
            joinStyle: ShapePath.RoundJoin
            PathSvg { path: "M8 6v12M16.5 6.5L8.6 12.4M11.6 10.6l5 7" }
        }
    }
}
