import QtQuick
import Karvello.Design

// A word on its ground. It tells and never acts.
Rectangle {
    id: control

    property int kind: KarvelloDesign.NeutralPill
    property alias text: label.text
    property string iconName
    readonly property color ink: KarvelloDesign.pillForegrounds[kind]

    implicitWidth: Math.ceil(label.implicitWidth) + icon.place + 14
    implicitHeight: Math.max(Math.round(20 * KarvelloDesign.textFactor), label.implicitHeight + 4)
    radius: KarvelloDesign.pillRadius
    color: KarvelloDesign.pillBackgrounds[kind]
    border.color: KarvelloDesign.pillStrokes[kind]
    border.width: kind === KarvelloDesign.NeutralPill ? 1 : 0

    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Row {
        anchors.centerIn: parent
        spacing: KarvelloDesign.spacing4

        KarvelloIcon {
            id: icon
            readonly property real place: visible ? width + KarvelloDesign.spacing4 : 0
            anchors.verticalCenter: parent.verticalCenter
            visible: control.iconName !== ""
            name: control.iconName
            tint: control.ink
            size: 12
        }
        KarvelloText {
            id: label
            width: Math.min(implicitWidth, control.width - icon.place - 14)
            textStyle: KarvelloDesign.label
            // Two of the pairs are a little pale for a thinner word.
            emphasis: control.kind === KarvelloDesign.SafePill || control.kind === KarvelloDesign.CautionPill
                ? KarvelloText.Strong : KarvelloText.Medium
            color: control.ink
            Accessible.ignored: true
        }
    }
}
