import QtQuick
import Karvello.Design

// One of several: segments while they fit into the greatest width, else a drop-down. The choices are { value, text }. It
// only asks: whoever owns the choice sets `currentValue`.
FocusScope {
    id: control

    property var choices: []
    property var currentValue
    property string accessibleName
    property string disabledReason
    property real maximumWidth: Infinity
    // A drop-down even where segments would fit: for choices that come and go.
    property bool isDropDown: false
    readonly property var texts: choices.map(choice => String(choice.text))
    readonly property int currentIndex: choices.findIndex(choice => choice.value === currentValue)
    readonly property real segmentsWidth: texts.reduce(
        (sum, text) => sum + Math.ceil(metrics.advanceWidth(text)) + 2 * KarvelloDesign.spacing12 + 1,
        KarvelloDesign.textFactor > 0 ? 4 : 0)
    readonly property real dropDownWidth: Math.max(88, Math.min(dropDown.implicitWidth, maximumWidth))
    readonly property bool isSegmented: !isDropDown && choices.length <= 4 && segmentsWidth <= maximumWidth

    signal picked(var value)

    function pick(index: int) {
        if (index >= 0 && index < choices.length && index !== currentIndex)
            picked(choices[index].value)
    }

    implicitWidth: isSegmented ? segments.implicitWidth : dropDownWidth
    implicitHeight: isSegmented ? segments.implicitHeight : dropDown.implicitHeight

    FontMetrics {
        id: metrics
        font: KarvelloDesign.small.medium
    }
    KarvelloSegmentedControl {
        id: segments
        visible: control.isSegmented
        anchors.fill: parent
        choices: control.texts
        currentIndex: control.currentIndex
        accessibleName: control.accessibleName
        onActivated: index => control.pick(index)
    }
    KarvelloDropDown {
        id: dropDown
        visible: !control.isSegmented
        anchors.fill: parent
        model: control.texts
        currentIndex: control.currentIndex
        accessibleName: control.accessibleName
        onActivated: index => {
            control.pick(index)
            // It shows what its owner holds, whatever was pressed.
            currentIndex = Qt.binding(() => control.currentIndex)
        }
    }
    KarvelloHint {
        target: control
        text: control.enabled ? "" : control.disabledReason
    }
}
