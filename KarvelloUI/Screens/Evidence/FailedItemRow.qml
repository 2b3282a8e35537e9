import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design

// An item that stayed where it was, and why.
T.ItemDelegate {
    id: control

    // A row that waits to be used again is only culled by its view: assistants would still read it and press it.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true

    required property string name
    required property string path
    required property string reason

    implicitWidth: 300
    implicitHeight: Math.ceil(implicitContentHeight) + topPadding + bottomPadding
    verticalPadding: KarvelloDesign.spacing8
    focusPolicy: ListView.isCurrentItem ? Qt.StrongFocus : Qt.ClickFocus

    KarvelloSpoken.focusable: true
    KarvelloSpoken.role: Accessible.ListItem
    Accessible.name: KarvelloDesign.spoken([name, path, reason])

    contentItem: ColumnLayout {
        spacing: 0

        KarvelloText {
            Layout.fillWidth: true
            text: control.name
            emphasis: KarvelloText.Medium
            color: KarvelloDesign.ink
            Accessible.ignored: true
        }
        KarvelloText {
            Layout.fillWidth: true
            text: control.path
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }
        KarvelloText {
            Layout.fillWidth: true
            text: control.reason
            textStyle: KarvelloDesign.small
            wrapMode: Text.WrapAtWordBoundaryOrAnywhere
            Accessible.ignored: true
        }
    }
    background: FocusRing {
        isShown: control.visualFocus
        radius: KarvelloDesign.checkBoxRadius
    }
}
