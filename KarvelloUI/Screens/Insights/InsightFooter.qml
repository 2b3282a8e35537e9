import QtQuick
import Karvello.Design
import Karvello.Screens.Insights

// The footer of a screen on which files are selected, with its keys.
KarvelloFooter {
    id: control

    required property InsightReviewScreenModel review
    // Whether the keys of the page mean this footer.
    property bool hasKeys: visible

    title: review.selectionTitle
    text: review.selectionText
    checkState: review.selectionState
    checkBoxName: review.toggleAllName
    canToggleAll: review.canSelectAll || review.canClear
    clearText: review.clearText
    canClear: review.canClear
    selectAllText: review.selectAllText
    canSelectAll: review.canSelectAll
    primaryText: review.cleanText
    canAct: review.canClean
    primaryDisabledReason: review.cleanDisabledReason
    isBusy: review.isCleaning
    moreName: review.moreName
    onClearRequested: review.clearSelection()
    onSelectAllRequested: review.selectAll()
    onToggleAllRequested: review.toggleAll()
    onPrimaryRequested: review.requestClean()

    Shortcut {
        enabled: control.hasKeys && control.review.canSelectAll
        sequence: "Ctrl+A"
        onActivated: control.review.selectAll()
    }
    Shortcut {
        enabled: control.hasKeys && control.review.canClear
        sequence: "Ctrl+Shift+A"
        onActivated: control.review.clearSelection()
    }
    Shortcut {
        enabled: control.hasKeys && control.review.canClean
        sequences: ["Ctrl+Return", "Ctrl+Enter"]
        onActivated: control.review.requestClean()
    }
}
