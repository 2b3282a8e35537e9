import QtQuick
import Karvello.Design
import Karvello.Screens.Cleanup

// A row of the list: a candidate, or the head of a section. Rows are used again for others as they scroll, so it is made for
// both.
FocusScope {
    id: control

    // A row that waits to be used again is only culled by its view: assistants would still read it and press it.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true

    required property CleanupScreenModel screen
    required property int index
    required property bool isHeader
    required property var content
    required property var head
    required property int checkState
    required property bool isOpen
    required property string spoken

    signal menuRequested(point at)
    signal focused()

    function takeFocus(reason: int) {
        const shown = isHeader ? section : candidate
        shown.forceActiveFocus(reason)
    }

    implicitHeight: isHeader ? section.implicitHeight : candidate.implicitHeight
    onActiveFocusChanged: {
        if (activeFocus)
            focused()
    }

    SectionRow {
        id: section
        width: parent.width
        visible: control.isHeader
        focus: control.isHeader
        screen: control.screen
        head: control.head
    }
    KarvelloListRow {
        id: candidate
        width: parent.width
        visible: !control.isHeader
        focus: !control.isHeader
        focusPolicy: Qt.ClickFocus
        enabled: !control.screen.isBusy
        name: control.content.name
        path: control.content.path
        reason: control.content.reason
        warning: control.content.warning
        age: control.content.age
        size: control.content.size
        iconName: control.content.iconName
        pillText: control.content.pillText
        pillKind: control.content.pillKind
        isChecked: control.checkState === Qt.Checked
        isOpen: control.isOpen
        accessibleName: control.spoken
        menuName: control.screen.texts.more
        details: Component {
            CandidateDetails {
                screen: control.screen // qmllint disable unqualified
                row: control.index // qmllint disable unqualified
            }
        }
        onToggleRequested: control.screen.toggle(control.index)
        onOpenRequested: isOpen => control.screen.setOpen(control.index, isOpen)
        onMenuRequested: at => control.menuRequested(at)
    }
}
