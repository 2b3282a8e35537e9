import QtQuick
import QtQuick.Layouts
import Karvello.Design

// A name and its value below a rule.
ColumnLayout {
    id: control

    required property var fact

    Layout.fillWidth: true
    spacing: KarvelloDesign.spacing8

    Accessible.role: Accessible.StaticText
    Accessible.name: KarvelloDesign.spoken([fact.name, fact.value])

    Rectangle {
        Layout.fillWidth: true
        implicitHeight: 1
        color: KarvelloDesign.lineSoft
    }
    RowLayout {
        spacing: KarvelloDesign.spacing12

        KarvelloText {
            Layout.fillWidth: true
            text: control.fact.name
            Accessible.ignored: true
        }
        KarvelloText {
            Layout.minimumWidth: Math.ceil(implicitWidth)
            text: control.fact.value
            emphasis: KarvelloText.Strong
            color: KarvelloDesign.ink
            Accessible.ignored: true
        }
    }
}
