// Parts of this file know the ids around them. The pragma that would say so breaks loaders and inline parts in Qt 6.4.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Evidence

// What the last clean took away, with boxes for what may be put back.
ListCard {
    id: control

    required property RestoreCenterModel center

    title: center.title
    subtitle: center.isEmpty ? "" : center.summary
    note: center.ledgerNote
    headItems: KarvelloPill {
        visible: text !== ""
        kind: KarvelloDesign.AccentPill
        text: control.center.eligibleText
    }
    hasFoot: center.offersRestore
    // The hint is a long one: the button has its own line.
    footItems: [
        KarvelloCheckBox {
            objectName: "restoreAll"
            Layout.alignment: Qt.AlignTop
            Layout.margins: -padding
            accessibleName: control.center.checkName
            enabled: control.center.canSelect
            isAsking: true
            checkState: control.center.checkState
            onClicked: control.center.toggleAll()
        },
        KarvelloText {
            objectName: "selectionHint"
            Layout.fillWidth: true
            text: control.center.selectionHint
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            wrapMode: Text.Wrap
        }
    ]
    footActions: [
        KarvelloButton {
            objectName: "restore"
            Layout.maximumWidth: control.width - 2 * KarvelloDesign.spacing20
            kind: KarvelloButton.Tonal
            iconName: "restore"
            text: control.center.restoreTitle
            enabled: control.center.canRestore
            isBusy: control.center.isRestoring
            onClicked: control.center.restore()
        }
    ]

    KarvelloEmptyState {
        Layout.fillWidth: true
        visible: control.center.isEmpty
        iconName: "restore"
        title: control.center.emptyTitle
        text: control.center.emptyText
    }
    KarvelloRows {
        objectName: "restoreRows"
        Layout.fillWidth: true
        visible: !control.center.isEmpty
        maximumHeight: 320 * KarvelloDesign.textFactor
        accessibleName: control.center.title
        model: control.center.rows

        delegate: KarvelloListRow {
            id: row

            required property int key
            required property string status
            required property string spokenName
            required property string trashLocation
            required property bool hasTrashLocation
            required property bool isSelected
            required path
            required size
            required isSelectable
            required isOpen

            width: ListView.view.width
            reason: status
            reasonInk: isSelectable ? KarvelloDesign.accent : KarvelloDesign.ink4
            iconName: "folder"
            isChecked: isSelected
            accessibleName: spokenName
            menuName: control.center.menuName
            disabledReason: isSelectable ? "" : status
            focusPolicy: ListView.isCurrentItem ? Qt.StrongFocus : Qt.ClickFocus
            onToggleRequested: control.center.toggle(key)
            onOpenRequested: isOpen => control.center.setOpen(key, isOpen)
            onMenuRequested: at => menu.openFor(row, at)

            details: Component {
                ColumnLayout {
                    spacing: KarvelloDesign.spacing8

                    KarvelloText {
                        Layout.fillWidth: true
                        text: row.trashLocation
                        textStyle: KarvelloDesign.small
                        wrapMode: Text.WrapAnywhere
                    }
                    Flow {
                        Layout.fillWidth: true
                        Layout.bottomMargin: KarvelloDesign.spacing8
                        spacing: KarvelloDesign.spacing8

                        KarvelloButton {
                            size: KarvelloButton.Small
                            text: control.center.revealOriginalTitle
                            onClicked: control.center.revealOriginal(row.key)
                        }
                        KarvelloButton {
                            size: KarvelloButton.Small
                            visible: row.hasTrashLocation
                            text: control.center.revealTrashTitle
                            onClicked: control.center.revealTrashLocation(row.key)
                        }
                    }
                }
            }
        }
    }
    KarvelloText {
        Layout.fillWidth: true
        Layout.margins: KarvelloDesign.spacing20
        Layout.topMargin: KarvelloDesign.spacing12
        Layout.bottomMargin: KarvelloDesign.spacing12
        visible: !control.center.isEmpty
        text: control.center.body + " " + control.center.trashNote
        textStyle: KarvelloDesign.small
        color: KarvelloDesign.ink3
        wrapMode: Text.Wrap
    }
    KarvelloMenu {
        id: menu

        property int key
        property bool hasTrashLocation

        function openFor(row, at) {
            key = row.key
            hasTrashLocation = row.hasTrashLocation
            openAt(row, at)
        }

        accessibleName: control.center.menuName

        KarvelloMenuItem {
            text: control.center.revealOriginalTitle
            iconName: "folder"
            onTriggered: control.center.revealOriginal(menu.key)
        }
        KarvelloMenuItem {
            text: control.center.revealTrashTitle
            iconName: "trash"
            enabled: menu.hasTrashLocation
            onTriggered: control.center.revealTrashLocation(menu.key)
        }
    }
}
