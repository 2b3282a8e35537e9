pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Karvello.Design

// One of many. The model is a list of texts, or of { value, text }; with other roles name them. It takes the width of its
// longest text unless told otherwise.
T.ComboBox {
    id: control

    property string accessibleName
    property string disabledReason
    property bool isReturnDown: false
    readonly property bool hasObjects: Array.isArray(model) && model.length > 0 && typeof model[0] === "object"
    readonly property real widestText: {
        let widest = 0
        for (let index = 0; KarvelloDesign.textFactor > 0 && index < count; ++index)
            widest = Math.max(widest, metrics.advanceWidth(textAt(index)))
        return Math.ceil(widest)
    }

    textRole: hasObjects ? "text" : ""
    valueRole: hasObjects ? "value" : ""
    implicitWidth: Math.max(88, widestText + leftPadding + rightPadding + 2)
    implicitHeight: Math.max(Math.round(34 * KarvelloDesign.textFactor), implicitContentHeight + topPadding + bottomPadding)
    leftPadding: KarvelloDesign.spacing12
    rightPadding: KarvelloDesign.spacing8 + indicator.width + KarvelloDesign.spacing8
    verticalPadding: KarvelloDesign.spacing4
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    opacity: pressed ? 0.92 : 1

    Accessible.name: KarvelloDesign.spoken([accessibleName, displayText])
    Accessible.description: enabled ? "" : disabledReason
    Accessible.onPressAction: {
        if (control.enabled)
            control.popup.open()
    }
    // On its release, since the release is what closes it.
    Keys.onReturnPressed: event => {
        control.isReturnDown = !control.popup.visible
        event.accepted = true
    }
    Keys.onReleased: event => {
        event.accepted = control.isReturnDown && event.key === Qt.Key_Return && !event.isAutoRepeat
        if (!event.accepted)
            return
        control.isReturnDown = false
        control.popup.open()
    }

    FontMetrics {
        id: metrics
        font: KarvelloDesign.body.medium
    }
    KarvelloHint {
        target: control
        text: control.enabled ? "" : control.disabledReason
    }

    contentItem: KarvelloText {
        text: control.displayText
        emphasis: KarvelloText.Medium
        color: control.enabled ? KarvelloDesign.ink : KarvelloDesign.ink4
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
    indicator: KarvelloIcon {
        x: control.width - width - KarvelloDesign.spacing8
        y: Math.round((control.height - height) / 2)
        name: "chevron-down"
        tint: control.enabled ? KarvelloDesign.ink2 : KarvelloDesign.ink4
        size: 14
    }
    background: Rectangle {
        radius: KarvelloDesign.controlRadius
        color: !control.enabled ? KarvelloDesign.elevated3
            : control.hovered || control.popup.visible ? KarvelloDesign.elevated2 : KarvelloDesign.elevated1
        border.color: control.enabled ? KarvelloDesign.lineStrong : KarvelloDesign.elevated3
        Behavior on color { ColorAnimation { duration: KarvelloDesign.shortDuration } }
        FocusRing { isShown: control.visualFocus }
    }

    delegate: T.ItemDelegate {
        id: choice

        required property int index
        readonly property bool isChosen: control.currentIndex === index

        width: ListView.view ? ListView.view.width : implicitWidth
        implicitHeight: Math.max(Math.round(32 * KarvelloDesign.textFactor), implicitContentHeight + topPadding + bottomPadding)
        leftPadding: KarvelloDesign.spacing8
        rightPadding: KarvelloDesign.spacing8
        verticalPadding: KarvelloDesign.spacing4
        hoverEnabled: control.hoverEnabled
        highlighted: control.highlightedIndex === index
        text: control.textAt(index)

        Accessible.name: text
        Accessible.selectable: true
        Accessible.selected: isChosen

        contentItem: KarvelloText {
            text: choice.text
            rightPadding: KarvelloDesign.spacing8 + Math.round(16 * KarvelloDesign.textFactor)
            emphasis: choice.isChosen ? KarvelloText.Medium : KarvelloText.Plain
            color: choice.isChosen ? KarvelloDesign.ink : KarvelloDesign.ink2
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }
        background: Rectangle {
            radius: KarvelloDesign.checkBoxRadius
            color: choice.highlighted ? KarvelloDesign.elevated3 : "transparent"
            KarvelloIcon {
                anchors.right: parent.right
                anchors.rightMargin: KarvelloDesign.spacing8
                anchors.verticalCenter: parent.verticalCenter
                visible: choice.isChosen
                name: "check"
                tint: KarvelloDesign.accent
            }
        }
    }

    popup: T.Popup {
        y: control.height + KarvelloDesign.spacing4
        width: Math.max(control.width, control.widestText + 2 * padding + 2 * KarvelloDesign.spacing8 + 32)
        implicitHeight: Math.min(implicitContentHeight + topPadding + bottomPadding, 360)
        margins: KarvelloDesign.spacing8
        padding: KarvelloDesign.spacing4

        contentItem: ListView {
            implicitHeight: contentHeight
            clip: true
            model: control.delegateModel
            currentIndex: control.highlightedIndex
            highlightMoveDuration: 0
            boundsBehavior: Flickable.StopAtBounds
            T.ScrollBar.vertical: KarvelloScrollBar {}
            Accessible.role: Accessible.List
            Accessible.name: control.accessibleName
        }
        background: Rectangle {
            radius: KarvelloDesign.controlRadius
            color: KarvelloDesign.elevated1
            border.color: KarvelloDesign.lineStrong
        }
    }
}
