import QtQuick
import QtQuick.Templates as T
import Karvello.Design
import Karvello.Screens.Cleanup

// The head of a section as a row of the list: the keys of a row work on it.
T.Control {
    id: control

    required property CleanupScreenModel screen
    // A CleanupSectionHead.
    required property var head

    implicitHeight: implicitContentHeight
    focusPolicy: Qt.ClickFocus

    Accessible.name: KarvelloDesign.spoken([head.name, head.count, head.total, head.note, head.selection])
    KarvelloSpoken.focusable: true
    Accessible.description: head.openText
    KarvelloSpoken.role: Accessible.CheckBox
    KarvelloSpoken.checkable: true
    KarvelloSpoken.expandable: true
    KarvelloSpoken.expanded: head.isOpen
    KarvelloSpoken.checked: head.checkState === Qt.Checked
    Accessible.checkStateMixed: head.checkState === Qt.PartiallyChecked
    Accessible.onToggleAction: screen.toggleSection(head.id)
    Accessible.onPressAction: screen.toggleSection(head.id)

    Keys.onPressed: event => {
        event.accepted = true
        if (event.key === Qt.Key_Space)
            control.screen.toggleSection(control.head.id)
        else if (event.key === Qt.Key_Right && !control.head.isOpen)
            control.screen.setSectionOpen(control.head.id, true)
        else if (event.key === Qt.Key_Left && control.head.isOpen)
            control.screen.setSectionOpen(control.head.id, false)
        else
            event.accepted = false
    }

    contentItem: KarvelloSectionHeader {
        name: control.head.name
        count: control.head.count
        note: control.head.note
        total: control.head.total
        checkState: control.head.checkState
        isSelectable: true
        enabled: !control.screen.isBusy
        isOpen: control.head.isOpen
        openText: control.head.openText
        // The row says it all.
        Accessible.ignored: true
        accessibleValue: control.head.selection
        takesFocus: false
        onToggleRequested: control.screen.toggleSection(control.head.id)
        onOpenRequested: isOpen => control.screen.setSectionOpen(control.head.id, isOpen)

        FocusRing {
            isShown: control.visualFocus
            distance: 2
            radius: KarvelloDesign.checkBoxRadius
        }
    }
}
