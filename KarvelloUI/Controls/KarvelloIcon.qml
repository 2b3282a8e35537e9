import QtQuick
import Karvello.Design

// An icon of the set, tinted. It grows with the text, by whole pixels on both sides of its middle. A word beside it says
// the same, so it is not spoken.
Image {
    id: control

    property string name
    property color tint: KarvelloDesign.ink3
    property int size: 16
    readonly property int side: 2 * Math.round(size * KarvelloDesign.textFactor / 2)

    width: side
    height: side
    sourceSize.width: side
    sourceSize.height: side
    source: name === "" ? "" : "image://karvello/" + name + "/" + String(tint).slice(-6)
    Accessible.ignored: true
}
