// Parts of this file know the ids around them. The pragma that would say so breaks loaders and inline parts in Qt 6.4.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design

// One entry of the history. A press opens it, if there is more to tell.
T.ItemDelegate {
    id: control

    // A row that waits to be used again is only culled by its view: assistants would still read it and press it.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true

    required property string title
    required property string date
    required property string summary
    required property string iconName
    required property string pill
    required property int pillKind
    required property string spokenName
    required property var details
    required property bool hasDetails
    required property bool isOpen
    property string openName

    signal openRequested(bool isOpen)

    implicitWidth: 480
    implicitHeight: Math.max(54, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    horizontalPadding: KarvelloDesign.spacing20
    verticalPadding: KarvelloDesign.spacing8
    hoverEnabled: true
    onClicked: if (hasDetails) openRequested(!isOpen)

    KarvelloSpoken.focusable: true
    KarvelloSpoken.role: Accessible.ListItem
    KarvelloSpoken.expandable: hasDetails
    KarvelloSpoken.expanded: isOpen
    Accessible.name: spokenName
    Accessible.description: isOpen ? details.join("\n") : hasDetails ? openName : ""
    Accessible.onPressAction: clicked()

    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Right && hasDetails && !isOpen || event.key === Qt.Key_Left && isOpen
            || event.key === Qt.Key_Return && hasDetails
        if (event.accepted)
            openRequested(!isOpen)
    }

    contentItem: ColumnLayout {
        spacing: KarvelloDesign.spacing8

        RowLayout {
            spacing: KarvelloDesign.spacing12

            IconTile {
                name: control.iconName
                color: KarvelloDesign.pillBackgrounds[control.pillKind]
                tint: KarvelloDesign.pillForegrounds[control.pillKind]
            }
            ColumnLayout {
                spacing: 0

                RowLayout {
                    spacing: KarvelloDesign.spacing8
                    KarvelloText {
                        text: control.title
                        emphasis: KarvelloText.Medium
                        color: KarvelloDesign.ink
                        Accessible.ignored: true
                    }
                    KarvelloText {
                        Layout.fillWidth: true
                        text: control.date
                        textStyle: KarvelloDesign.small
                        color: KarvelloDesign.ink3
                        Accessible.ignored: true
                    }
                }
                KarvelloText {
                    Layout.fillWidth: true
                    text: control.summary
                    textStyle: KarvelloDesign.small
                    color: KarvelloDesign.ink3
                    wrapMode: Text.Wrap
                    Accessible.ignored: true
                }
            }
            KarvelloPill {
                visible: text !== ""
                kind: control.pillKind
                text: control.pill
                Accessible.ignored: true
            }
            KarvelloIcon {
                opacity: control.hasDetails ? 1 : 0
                name: control.isOpen ? "chevron-down" : "chevron-right"
            }
        }
        Loader {
            Layout.fillWidth: true
            Layout.leftMargin: 2 * Math.round(16 * KarvelloDesign.textFactor) + KarvelloDesign.spacing12
            active: control.isOpen
            visible: active
            // No layout: one that is hidden while its items go keeps looking at them, and the program crashes (Qt 6.4).
            sourceComponent: Column {
                spacing: 2
                Repeater {
                    model: control.details
                    KarvelloText {
                        required property string modelData
                        width: parent ? parent.width : 0
                        text: modelData
                        textStyle: KarvelloDesign.small
                        wrapMode: Text.WrapAtWordBoundaryOrAnywhere
                    }
                }
            }
        }
    }
    background: Rectangle {
        color: control.hovered && control.hasDetails ? KarvelloDesign.elevated2 : "transparent"
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: KarvelloDesign.lineSoft
        }
        FocusRing {
            isShown: control.visualFocus
            distance: 2
            radius: KarvelloDesign.checkBoxRadius
        }
    }
}
