pragma ComponentBehavior: Bound
import QtQuick
import Karvello.Design

// The large form of the sparkline, with rules behind it and words at its axes. Like that, it is not spoken.
Item {
    id: control

    property list<real> samples
    property string emptyText
    property color tint: KarvelloDesign.accent
    // From the top to the bottom, at even distances: "100%", "50%", "0%".
    property list<string> axisWords
    property string startText
    property string endText
    readonly property real axisWidth: {
        let widest = 0
        for (const word of axisWords)
            widest = Math.max(widest, metrics.advanceWidth(word))
        return widest > 0 && KarvelloDesign.textFactor > 0 ? Math.ceil(widest) + KarvelloDesign.spacing16 : 0
    }

    implicitWidth: 480
    implicitHeight: 240
    Accessible.ignored: true

    FontMetrics {
        id: metrics
        font: KarvelloDesign.label.font
    }
    Item {
        id: plot
        readonly property real inset: 3

        function levelAt(part: real): real {
            return Math.round(inset + part * (height - 2 * inset))
        }

        y: Math.ceil(metrics.height / 2)
        width: parent.width - control.axisWidth
        height: parent.height - y - (words.visible ? words.height + KarvelloDesign.spacing4 : y)

        Repeater {
            model: 4
            Rectangle {
                required property int index
                y: plot.levelAt(index / 4)
                width: plot.width
                height: 1
                color: KarvelloDesign.lineSoft
            }
        }
        Rectangle {
            y: plot.levelAt(1)
            width: plot.width
            height: 1
            color: KarvelloDesign.line
        }
        KarvelloSparkline {
            anchors.fill: parent
            samples: control.samples
            tint: control.tint
            lineWidth: 1.75
        }
        KarvelloText {
            anchors.centerIn: parent
            visible: control.samples.length < 2
            text: control.emptyText
            color: KarvelloDesign.ink3
        }
    }
    Repeater {
        model: control.axisWords
        KarvelloText {
            required property int index
            required property string modelData
            anchors.right: parent ? parent.right : undefined
            y: plot.y + plot.levelAt(control.axisWords.length > 1 ? index / (control.axisWords.length - 1) : 0)
                - height / 2
            text: modelData
            textStyle: KarvelloDesign.label
            color: KarvelloDesign.ink4
        }
    }
    Item {
        id: words
        anchors.bottom: parent.bottom
        width: plot.width
        height: start.implicitHeight
        visible: control.startText !== "" || control.endText !== ""

        KarvelloText {
            id: start
            text: control.startText
            textStyle: KarvelloDesign.label
            color: KarvelloDesign.ink4
        }
        KarvelloText {
            anchors.right: parent.right
            text: control.endText
            textStyle: KarvelloDesign.label
            color: KarvelloDesign.ink4
        }
    }
}
