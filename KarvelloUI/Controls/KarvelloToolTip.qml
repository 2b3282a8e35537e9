import QtQuick
import QtQuick.Templates as T
import Karvello.Design

T.ToolTip {
    id: control

    readonly property int widest: 400

    x: parent ? Math.round((parent.width - implicitWidth) / 2) : 0
    y: -implicitHeight - KarvelloDesign.spacing4
    implicitWidth: Math.min(widest, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    margins: KarvelloDesign.spacing8
    horizontalPadding: KarvelloDesign.spacing8
    verticalPadding: KarvelloDesign.spacing4
    delay: 600
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent | T.Popup.CloseOnReleaseOutsideParent

    contentItem: Text {
        text: control.text
        textFormat: Text.PlainText
        font: KarvelloDesign.small.font
        color: KarvelloDesign.ink
        wrapMode: Text.Wrap
    }

    background: Rectangle {
        color: KarvelloDesign.elevated1
        radius: KarvelloDesign.controlRadius
        border.color: KarvelloDesign.lineStrong
    }
}
