import QtQuick
import Karvello.Design
import Karvello.Screens.Cleanup

// How to scan and what to show of what was found. Where room is short, the groupings become a drop-down; where there is none,
// all filters fold into one menu. Placed by hand: a layout of pickers that look at its width stays as it was first.
Item {
    id: control

    required property CleanupScreenModel screen
    readonly property real widthForGroupings: width - modes.implicitWidth - leastSearchWidth - categories.implicitWidth
        - safetyLevels.implicitWidth - 4 * spacing
    readonly property int spacing: KarvelloDesign.spacing8
    readonly property bool hasSegments: groupings.segmentsWidth <= widthForGroupings
    readonly property bool isFolded: KarvelloDesign.textFactor >= 1.25
        || !hasSegments && groupings.dropDownWidth > widthForGroupings
    readonly property int leastSearchWidth: 144
    // A long choice is shown in full by the list that drops down.
    readonly property real mostFilterWidth: Math.max(104, Math.min(152,
        Math.floor((width - modes.implicitWidth - leastSearchWidth - 4 * spacing) / 3)))

    // Escape on an empty field.
    signal leaveRequested()

    function focusSearch() {
        search.forceActiveFocus(Qt.ShortcutFocusReason)
        search.selectAll()
    }

    implicitHeight: Math.max(modes.implicitHeight, search.implicitHeight, filters.implicitHeight)

    KarvelloPicker {
        id: modes
        objectName: "modes"
        choices: control.screen.scanModes
        currentValue: control.screen.scanMode
        accessibleName: control.screen.texts.scanMode
        enabled: control.screen.canChooseScanMode
        disabledReason: control.screen.texts.scanModeDisabledReason
        maximumWidth: 380
        onPicked: value => control.screen.scanMode = value

        KarvelloHint {
            target: modes
            text: modes.enabled ? control.screen.texts.scanModeHint : ""
        }
    }
    KarvelloTextField {
        id: search
        objectName: "search"
        x: modes.width + control.spacing
        width: filters.x - control.spacing - x
        iconName: "search"
        placeholderText: control.screen.texts.search
        clearName: control.screen.texts.clearSearch
        enabled: control.screen.canFilter
        onTextChanged: control.screen.searchText = text
        Keys.onDownPressed: control.leaveRequested()

        Connections {
            target: control.screen
            function onFiltersChanged() {
                if (search.text !== control.screen.searchText)
                    search.text = control.screen.searchText
            }
        }
    }
    Row {
        id: filters
        anchors.right: parent.right
        spacing: control.spacing

        KarvelloPicker {
            id: categories
            visible: !control.isFolded
            isDropDown: true
            maximumWidth: control.mostFilterWidth
            choices: control.screen.categories
            currentValue: control.screen.category
            accessibleName: control.screen.texts.category
            enabled: control.screen.canFilter
            onPicked: value => control.screen.category = value
        }
        KarvelloPicker {
            id: safetyLevels
            visible: !control.isFolded
            isDropDown: true
            maximumWidth: control.mostFilterWidth
            choices: control.screen.safetyLevels
            currentValue: control.screen.safety
            accessibleName: control.screen.texts.safety
            enabled: control.screen.canFilter
            onPicked: value => control.screen.safety = value
        }
        KarvelloPicker {
            id: groupings
            visible: !control.isFolded
            isDropDown: !control.hasSegments
            maximumWidth: isDropDown ? control.mostFilterWidth : Infinity
            choices: control.screen.groupings
            currentValue: control.screen.grouping
            accessibleName: control.screen.texts.grouping
            enabled: control.screen.canFilter
            onPicked: value => control.screen.grouping = value
        }
        KarvelloButton {
            id: folded
            objectName: "folded"
            visible: control.isFolded
            text: control.screen.texts.filters
            iconName: "chevron-down"
            enabled: control.screen.canFilter
            KarvelloSpoken.role: Accessible.ButtonMenu
            onClicked: menu.openBelow(folded)

            KarvelloMenu {
                id: menu
                accessibleName: control.screen.texts.filters

                ChoiceMenu {
                    title: control.screen.texts.category
                    choices: control.screen.categories
                    currentValue: control.screen.category
                    onPicked: value => control.screen.category = value
                }
                ChoiceMenu {
                    title: control.screen.texts.safety
                    choices: control.screen.safetyLevels
                    currentValue: control.screen.safety
                    onPicked: value => control.screen.safety = value
                }
                ChoiceMenu {
                    title: control.screen.texts.grouping
                    choices: control.screen.groupings
                    currentValue: control.screen.grouping
                    onPicked: value => control.screen.grouping = value
                }
            }
        }
    }
    Keys.onEscapePressed: leaveRequested()
}
