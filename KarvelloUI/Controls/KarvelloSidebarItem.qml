import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design

// One section of the application. It holds no state; the sidebar is one stop for Tab and moves between its items.
T.ItemDelegate {
    id: control

    property string iconName
    // How many there are to look at; nothing when there are none.
    property string count
    property bool isSelected: false
    // Whether Tab stops here.
    property bool isStop: isSelected
    property string accessibleName: KarvelloDesign.spoken([text, count])

    // By one item, or to the first (-2) or last (2).
    signal moveRequested(int step)

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Math.max(Math.round(34 * KarvelloDesign.textFactor), implicitContentHeight + topPadding + bottomPadding)
    horizontalPadding: KarvelloDesign.spacing8
    verticalPadding: KarvelloDesign.spacing4
    hoverEnabled: true
    focusPolicy: isStop || activeFocus ? Qt.StrongFocus : Qt.ClickFocus

    Accessible.name: accessibleName
    KarvelloSpoken.focusable: true
    KarvelloSpoken.role: Accessible.ListItem
    Accessible.selectable: true
    Accessible.selected: isSelected
    Accessible.onPressAction: control.clicked()

    Keys.onPressed: event => {
        const steps = { [Qt.Key_Up]: -1, [Qt.Key_Down]: 1, [Qt.Key_Home]: -2, [Qt.Key_End]: 2 }
        event.accepted = event.key in steps || event.key === Qt.Key_Return || event.key === Qt.Key_Enter
        if (event.key in steps)
            control.moveRequested(steps[event.key])
        else if (event.accepted && !event.isAutoRepeat)
            control.clicked()
    }

    contentItem: RowLayout {
        spacing: 10

        KarvelloIcon {
            name: control.iconName
            tint: control.isSelected ? KarvelloDesign.accent : KarvelloDesign.ink3
            size: 18
        }
        KarvelloText {
            Layout.fillWidth: true
            text: control.text
            emphasis: control.isSelected ? KarvelloText.Strong : KarvelloText.Medium
            color: control.isSelected ? KarvelloDesign.ink : KarvelloDesign.ink2
            Accessible.ignored: true
        }
        KarvelloText {
            visible: text !== ""
            text: control.count
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink4
            Accessible.ignored: true
        }
    }
    background: Rectangle {
        radius: KarvelloDesign.controlRadius
        color: control.isSelected ? KarvelloDesign.accentSoft : control.hovered ? KarvelloDesign.elevated3 : "transparent"
        Behavior on color { ColorAnimation { duration: KarvelloDesign.shortDuration } }
        FocusRing {
            isShown: control.visualFocus
            distance: 2
            radius: KarvelloDesign.checkBoxRadius
        }
    }
}
