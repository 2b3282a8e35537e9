import QtQuick
import QtQuick.Layouts
import Karvello.Design

KarvelloFormRow {
    Layout.fillWidth: true
}
