import QtQuick
import Karvello.Design

// A text of the interface. Names come from the disk, so nothing in them counts as markup, and one line stays one line.
// What is elided can be read in a tool tip.
Text {
    id: control

    enum Emphasis { Plain, Medium, Strong }

    property KarvelloTextStyle textStyle: KarvelloDesign.body
    property int emphasis: KarvelloText.Plain
    readonly property bool isParagraph: wrapMode !== Text.NoWrap

    font: emphasis === KarvelloText.Strong ? textStyle.strong
        : emphasis === KarvelloText.Medium ? textStyle.medium : textStyle.font
    color: KarvelloDesign.ink2
    textFormat: Text.PlainText
    elide: Text.ElideRight
    maximumLineCount: isParagraph ? 1000 : 1
    lineHeightMode: isParagraph ? Text.FixedHeight : Text.ProportionalHeight
    lineHeight: isParagraph ? textStyle.lineHeight : 1

    Accessible.role: Accessible.StaticText
    Accessible.name: text

    HoverHandler {
        enabled: control.truncated
        onHoveredChanged: hovered ? tip.setSource("KarvelloToolTip.qml", { text: control.text, visible: true }) : tip.setSource("")
    }
    Loader {
        id: tip
        anchors.fill: parent
    }
}
