import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design

// One item of a list: box, tile, name over path, reason, pill, age and size. A press on the box or on a blank place toggles,
// one on the texts or on the chevron opens the details. It holds no state: whoever owns the selection sets `isChecked`.
T.CheckDelegate {
    id: control

    // A row that waits to be used again is only culled by its view: assistants would still read it and press it.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true

    required property string name
    property string path
    property string reason
    property color reasonInk: KarvelloDesign.ink3
    // The application that has it in use, as a sentence.
    property string warning
    property string age
    property string size
    property string iconName: "folder"
    property string pillText
    property int pillKind: KarvelloDesign.NeutralPill
    property bool isChecked: false
    property bool isSelectable: true
    property bool isOpen: false
    property string accessibleName: KarvelloDesign.spoken([name, pillText, size, path, warning, reason, age])
    // What the menu button is called.
    required property string menuName
    // Why it may not be selected.
    property string disabledReason
    // Without a box it is only to look at.
    property bool hasCheckBox: true
    // Shown below the row while it is open.
    property Component details: null

    // Large texts take the room of the columns: pill, age and reason then stand with name and path.
    readonly property bool isLargeText: KarvelloDesign.textFactor >= 1.25
    readonly property bool hasReason: reason !== "" || warning !== ""
    readonly property real nameWidth: availableWidth * 0.3
    readonly property string pathLine: !isLargeText || age === "" ? path : path === "" ? age : path + " · " + age
    readonly property int pillWidth: 104
    readonly property real ageWidth: Math.round(60 * KarvelloDesign.textFactor)
    readonly property real sizeWidth: Math.round(72 * KarvelloDesign.textFactor)
    readonly property real textStart: (hasCheckBox ? 2 * Math.round(8 * KarvelloDesign.textFactor) + KarvelloDesign.spacing12 : 0)
        + 2 * Math.round(16 * KarvelloDesign.textFactor) + KarvelloDesign.spacing12
    readonly property real reasonWidth: availableWidth - textStart - nameWidth - pillWidth - ageWidth - sizeWidth - 28
        - 5 * KarvelloDesign.spacing12
    // Too narrow a reason goes under the path.
    readonly property bool hasReasonColumn: hasReason && !isLargeText && reasonWidth >= 200

    signal toggleRequested()
    signal openRequested(bool isOpen)
    // Where in this row.
    signal menuRequested(point at)

    function toggleIfSelectable() {
        if (control.enabled && control.isSelectable)
            control.toggleRequested()
    }

    // The state is the owner's.
    checkable: false
    implicitWidth: 640
    implicitHeight: Math.max(54, Math.ceil(implicitContentHeight) + topPadding + bottomPadding)
    horizontalPadding: KarvelloDesign.spacing16
    verticalPadding: KarvelloDesign.spacing8
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    onClicked: toggleIfSelectable()

    Accessible.name: accessibleName
    Accessible.description: isSelectable ? "" : disabledReason
    KarvelloSpoken.focusable: true
    KarvelloSpoken.role: hasCheckBox ? Accessible.CheckBox : Accessible.ListItem
    KarvelloSpoken.expandable: details !== null
    KarvelloSpoken.expanded: isOpen
    KarvelloSpoken.checkable: hasCheckBox && isSelectable
    KarvelloSpoken.checked: hasCheckBox && isSelectable && isChecked
    Accessible.onToggleAction: toggleIfSelectable()
    // Without a box there is nothing to do with it but to open it.
    Accessible.onPressAction: hasCheckBox ? toggleIfSelectable() : openRequested(!isOpen)

    Keys.onPressed: event => {
        event.accepted = true
        if (event.key === Qt.Key_Right && !control.isOpen)
            control.openRequested(true)
        else if (event.key === Qt.Key_Left && control.isOpen)
            control.openRequested(false)
        else if (event.key === Qt.Key_Menu || event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier)
            control.menuRequested(Qt.point(control.textStart, control.height))
        else
            event.accepted = false
    }
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        onClicked: mouse => control.menuRequested(Qt.point(mouse.x, mouse.y))
    }

    contentItem: ColumnLayout {
        spacing: 0

        RowLayout {
            // So that the row stays where it is when it opens.
            Layout.minimumHeight: 54 - 2 * KarvelloDesign.spacing8
            spacing: KarvelloDesign.spacing12

            KarvelloCheckBox {
                visible: control.hasCheckBox
                Layout.leftMargin: -padding
                Layout.rightMargin: -padding
                isLocked: !control.isSelectable
                disabledReason: control.disabledReason
                checkState: control.isChecked ? Qt.Checked : Qt.Unchecked
                focusPolicy: Qt.NoFocus
                isAsking: true
                onClicked: control.toggleIfSelectable()
                Accessible.ignored: true
            }
            IconTile {
                name: control.iconName
                opacity: control.isSelectable || !control.hasCheckBox ? 1 : 0.5
            }
            ColumnLayout {
                Layout.preferredWidth: control.hasReasonColumn ? control.nameWidth : 0
                Layout.fillWidth: !control.hasReasonColumn
                spacing: 0

                RowLayout {
                    spacing: KarvelloDesign.spacing8
                    KarvelloText {
                        Layout.fillWidth: true
                        Layout.maximumWidth: Math.ceil(implicitWidth)
                        text: control.name
                        emphasis: KarvelloText.Medium
                        color: KarvelloDesign.ink
                        Accessible.ignored: true
                    }
                    KarvelloPill {
                        visible: control.isLargeText && text !== ""
                        kind: control.pillKind
                        text: control.pillText
                        Accessible.ignored: true
                    }
                    Item { Layout.fillWidth: true }
                }
                KarvelloText {
                    Layout.fillWidth: true
                    visible: text !== ""
                    text: control.pathLine
                    textStyle: KarvelloDesign.small
                    color: KarvelloDesign.ink3
                    elide: Text.ElideMiddle
                    Accessible.ignored: true
                }
                RowLayout {
                    visible: control.hasReason && !control.hasReasonColumn
                    spacing: KarvelloDesign.spacing8
                    Warning {
                        Layout.fillWidth: control.reason === ""
                        visible: text !== ""
                        text: control.warning
                    }
                    KarvelloText {
                        Layout.fillWidth: true
                        visible: text !== ""
                        text: control.reason
                        textStyle: KarvelloDesign.small
                        color: control.reasonInk
                        Accessible.ignored: true
                    }
                }
                TapHandler { onTapped: control.openRequested(!control.isOpen) }
            }
            ColumnLayout {
                Layout.fillWidth: true
                Layout.preferredWidth: 0
                visible: control.hasReasonColumn
                spacing: 0

                Warning {
                    visible: text !== ""
                    text: control.warning
                }
                KarvelloText {
                    Layout.fillWidth: true
                    visible: text !== ""
                    text: control.reason
                    textStyle: KarvelloDesign.small
                    color: control.reasonInk
                    wrapMode: Text.Wrap
                    maximumLineCount: control.warning === "" ? 2 : 1
                    Accessible.ignored: true
                }
                TapHandler { onTapped: control.openRequested(!control.isOpen) }
            }
            KarvelloPill {
                Layout.rightMargin: Math.max(0, control.pillWidth - implicitWidth)
                visible: !control.isLargeText && text !== ""
                kind: control.pillKind
                text: control.pillText
                Accessible.ignored: true
            }
            KarvelloText {
                Layout.preferredWidth: Math.max(control.ageWidth, Math.ceil(implicitWidth))
                visible: !control.isLargeText && control.age !== ""
                text: control.age
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                horizontalAlignment: Text.AlignRight
                Accessible.ignored: true
            }
            KarvelloText {
                Layout.preferredWidth: Math.max(control.sizeWidth, Math.ceil(implicitWidth))
                text: control.size
                emphasis: KarvelloText.Medium
                color: KarvelloDesign.ink
                horizontalAlignment: Text.AlignRight
                Accessible.ignored: true
            }
            KarvelloButton {
                kind: KarvelloButton.Quiet
                size: KarvelloButton.Small
                focusPolicy: Qt.NoFocus
                iconName: control.hovered ? "more" : control.isOpen ? "chevron-down" : "chevron-right"
                accessibleName: control.menuName
                onClicked: {
                    if (control.hovered)
                        control.menuRequested(mapToItem(control, 0, height))
                    else
                        control.openRequested(!control.isOpen)
                }
            }
        }
        Loader {
            Layout.fillWidth: true
            Layout.topMargin: KarvelloDesign.spacing8
            // Under the texts, beside box and tile.
            Layout.leftMargin: control.textStart
            active: control.isOpen && control.details !== null
            visible: active
            opacity: status === Loader.Ready ? 1 : 0
            sourceComponent: control.details

            // A press between the details is none on the row.
            MouseArea {
                anchors.fill: parent
                z: -1
            }
            Behavior on opacity { NumberAnimation { duration: KarvelloDesign.expandDuration } }
        }
    }

    component Warning: RowLayout {
        property string text
        spacing: KarvelloDesign.spacing4
        Rectangle {
            implicitWidth: 6
            implicitHeight: 6
            radius: 3
            color: KarvelloDesign.caution
        }
        KarvelloText {
            Layout.fillWidth: true
            text: parent.text
            textStyle: KarvelloDesign.small
            emphasis: KarvelloText.Medium
            color: KarvelloDesign.caution
            Accessible.ignored: true
        }
    }

    background: Rectangle {
        color: control.hovered ? KarvelloDesign.elevated2 : "transparent"
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
