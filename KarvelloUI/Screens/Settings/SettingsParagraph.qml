import QtQuick
import QtQuick.Layouts
import Karvello.Design

// What is to be known about a group, within its sheet.
KarvelloText {
    Layout.fillWidth: true
    Layout.margins: KarvelloDesign.spacing20
    Layout.topMargin: KarvelloDesign.spacing16
    Layout.bottomMargin: KarvelloDesign.spacing16
    textStyle: KarvelloDesign.small
    color: KarvelloDesign.ink3
    wrapMode: Text.Wrap
}
