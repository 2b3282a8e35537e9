import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Popover

// A figure of the machine and its bar.
ColumnLayout {
    id: control

    required property var metric
    property string detail
    property bool isLarge: false

    readonly property color tint: metric.level === PopoverLevel.Critical ? KarvelloDesign.review
        : metric.level === PopoverLevel.Warning ? KarvelloDesign.caution : KarvelloDesign.accent

    spacing: KarvelloDesign.spacing4

    Accessible.role: Accessible.Indicator
    Accessible.name: KarvelloDesign.spoken([metric.title, metric.value])
    Accessible.description: detail

    RowLayout {
        spacing: KarvelloDesign.spacing8

        KarvelloIcon {
            name: control.metric.iconName
            tint: KarvelloDesign.ink2
            size: 14
        }
        KarvelloText {
            Layout.fillWidth: true
            text: control.metric.title
            textStyle: KarvelloDesign.small
            Accessible.ignored: true
        }
    }
    KarvelloText {
        Layout.fillWidth: true
        text: control.metric.value
        textStyle: control.isLarge ? KarvelloDesign.title : KarvelloDesign.heading
        emphasis: KarvelloText.Strong
        color: KarvelloDesign.ink
        wrapMode: control.isLarge ? Text.Wrap : Text.NoWrap
        Accessible.ignored: true
    }
    KarvelloProgressBar {
        Layout.fillWidth: true
        value: control.metric.fraction
        thickness: control.isLarge ? 8 : 4
        tint: control.tint
        Accessible.ignored: true
    }
    KarvelloText {
        Layout.fillWidth: true
        visible: text !== ""
        text: control.detail
        textStyle: KarvelloDesign.small
        color: KarvelloDesign.ink3
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
