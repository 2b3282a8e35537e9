import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design

// One entry of a menu. One with a submenu shows an arrow.
T.MenuItem {
    id: control

    property string iconName
    property string disabledReason

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Math.max(Math.round(32 * KarvelloDesign.textFactor), implicitContentHeight + topPadding + bottomPadding)
    horizontalPadding: KarvelloDesign.spacing8
    verticalPadding: KarvelloDesign.spacing4
    hoverEnabled: true

    Accessible.name: text
    Accessible.description: enabled ? "" : disabledReason
    Accessible.onPressAction: {
        if (control.enabled)
            control.triggered()
    }

    contentItem: RowLayout {
        spacing: KarvelloDesign.spacing8

        KarvelloIcon {
            visible: control.iconName !== "" || control.checked
            name: control.checked ? "check" : control.iconName
            tint: control.enabled ? KarvelloDesign.ink3 : KarvelloDesign.ink4
        }
        KarvelloText {
            Layout.fillWidth: true
            text: control.text
            color: control.enabled ? KarvelloDesign.ink : KarvelloDesign.ink4
            Accessible.ignored: true
        }
        KarvelloIcon {
            visible: control.subMenu !== null
            name: "chevron-right"
            size: 14
        }
    }
    background: Rectangle {
        radius: KarvelloDesign.checkBoxRadius
        color: control.highlighted && control.enabled ? KarvelloDesign.elevated3 : "transparent"
    }
}
