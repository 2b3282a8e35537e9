import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Insights

// One file of the list, with what there is to know of it below while it is open.
KarvelloListRow {
    id: row

    required property InsightListScreenModel screen
    required property int index
    required property int key
    required property string spokenName
    required property string fullPath
    required property string explanation
    required path
    required age
    required size
    required reason
    required pillText
    required iconName
    required isOpen
    required isSelectable
    required property bool isSelected
    required property bool isCurrent

    hasCheckBox: screen.hasFooter
    isChecked: isSelected
    pillKind: KarvelloDesign.ReviewPill
    accessibleName: spokenName
    menuName: screen.moreName
    disabledReason: hasCheckBox && !isSelectable ? screen.notSelectableText : ""
    // The list is one stop; arrows go on from there.
    focusPolicy: isCurrent ? Qt.StrongFocus : Qt.ClickFocus
    onToggleRequested: screen.toggle(key)
    onOpenRequested: isOpen => screen.setOpen(key, isOpen)

    // A loader makes it, which Qt 6.4 does not do for a component that is bound to its ids.
    // qmllint disable unqualified
    details: Component {
        ColumnLayout {
            spacing: KarvelloDesign.spacing4

            KarvelloText {
                Layout.fillWidth: true
                text: row.screen.whyText
                textStyle: KarvelloDesign.small
                emphasis: KarvelloText.Medium
                color: KarvelloDesign.ink
            }
            KarvelloText {
                Layout.fillWidth: true
                text: row.explanation
                textStyle: KarvelloDesign.small
                wrapMode: Text.Wrap
            }
            KarvelloText {
                Layout.fillWidth: true
                visible: text !== ""
                text: row.disabledReason
                textStyle: KarvelloDesign.small
                wrapMode: Text.Wrap
            }
            KarvelloText {
                Layout.fillWidth: true
                text: row.fullPath
                textStyle: KarvelloDesign.small
                wrapMode: Text.WrapAnywhere
            }
            KarvelloButton {
                Layout.topMargin: KarvelloDesign.spacing4
                Layout.bottomMargin: KarvelloDesign.spacing8
                size: KarvelloButton.Small
                iconName: "folder"
                text: row.screen.revealText
                onClicked: row.screen.reveal(row.key)
            }
        }
    }
    // qmllint enable unqualified
}
