import QtQuick
import QtQuick.Layouts
import Karvello.Design

Rectangle {
    Layout.fillWidth: true
    implicitHeight: 1
    color: KarvelloDesign.lineSoft
}
