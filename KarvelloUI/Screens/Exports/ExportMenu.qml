import QtQuick
import Karvello.Design
import Karvello.Screens.Exports

// The button of a screen that writes what it shows into a file, and the ways to do that behind it.
KarvelloButton {
    id: control

    required property ExportMenuModel exportModel

    text: exportModel.title
    accessibleName: exportModel.accessibleName
    iconName: "export"
    enabled: exportModel.isEnabled
    isBusy: exportModel.isWriting
    onClicked: menu.openBelow(control)

    KarvelloSpoken.role: Accessible.ButtonMenu
    Accessible.description: exportModel.explanation

    KarvelloMenu {
        id: menu
        accessibleName: control.exportModel.accessibleName

        KarvelloMenuItem {
            text: control.exportModel.entries[0]
            iconName: "file"
            onTriggered: control.exportModel.choose(0)
        }
        KarvelloMenuItem {
            text: control.exportModel.entries[1]
            iconName: "file"
            onTriggered: control.exportModel.choose(1)
        }
        KarvelloMenuItem {
            text: control.exportModel.entries[2]
            iconName: "hidden"
            onTriggered: control.exportModel.choose(2)
        }
        KarvelloMenuItem {
            text: control.exportModel.entries[3]
            iconName: "hidden"
            onTriggered: control.exportModel.choose(3)
        }
        // As wide as the entries make the menu.
        Item {
            implicitWidth: 0
            implicitHeight: hint.implicitHeight + 2 * KarvelloDesign.spacing8
            KarvelloText {
                id: hint
                x: KarvelloDesign.spacing8
                y: KarvelloDesign.spacing8
                width: Math.max(0, parent.width - 2 * x)
                text: control.exportModel.redactedHint
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                wrapMode: Text.Wrap
            }
        }
    }
}
