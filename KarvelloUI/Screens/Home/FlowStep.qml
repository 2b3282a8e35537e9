import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design

// One step: a mark for its state, its name, and how it stands.
T.Button {
    id: control

    required property var entry
    required property int index
    property bool hasNext: false

    implicitWidth: 176
    implicitHeight: Math.max(56, implicitContentHeight + topPadding + bottomPadding)
    padding: KarvelloDesign.spacing8
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    opacity: down ? 0.92 : 1
    text: entry.title

    Accessible.name: KarvelloDesign.spoken([entry.title, entry.detail])
    Accessible.description: entry.stateText
    Accessible.onPressAction: control.clicked()
    Keys.onReturnPressed: event => {
        if (!event.isAutoRepeat)
            control.clicked()
    }
    Keys.onEnterPressed: event => {
        if (!event.isAutoRepeat)
            control.clicked()
    }

    contentItem: RowLayout {
        spacing: KarvelloDesign.spacing12

        Rectangle {
            implicitWidth: 2 * Math.round(12 * KarvelloDesign.textFactor)
            implicitHeight: implicitWidth
            radius: width / 2
            color: control.entry.isCurrent ? KarvelloDesign.accent : "transparent"
            border.width: control.entry.isCurrent ? 0 : 1
            border.color: KarvelloDesign.lineStrong
            KarvelloIcon {
                anchors.centerIn: parent
                name: control.entry.isDone ? "check" : control.entry.iconName
                tint: control.entry.isCurrent ? KarvelloDesign.accentForeground
                    : control.entry.isDone ? KarvelloDesign.accent : KarvelloDesign.ink3
                size: 14
            }
        }
        ColumnLayout {
            spacing: 0
            KarvelloText {
                Layout.fillWidth: true
                text: control.entry.title
                emphasis: KarvelloText.Strong
                color: KarvelloDesign.ink
                Accessible.ignored: true
            }
            KarvelloText {
                Layout.fillWidth: true
                text: control.entry.detail
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                Accessible.ignored: true
            }
        }
        KarvelloIcon {
            visible: control.hasNext
            name: "chevron-right"
            tint: KarvelloDesign.ink4
            size: 14
        }
    }
    background: Rectangle {
        radius: KarvelloDesign.controlRadius
        color: control.hovered ? KarvelloDesign.elevated2 : "transparent"
        Behavior on color { ColorAnimation { duration: KarvelloDesign.shortDuration } }
        FocusRing {
            isShown: control.visualFocus
            distance: 2
        }
    }
}
