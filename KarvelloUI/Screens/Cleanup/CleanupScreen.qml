import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Cleanup
import Karvello.Screens.Exports

// The review: how to scan, what was found, and what of it goes to the Trash.
KarvelloPage {
    id: control

    required property CleanupScreenModel screen
    readonly property string face: screen.face
    readonly property bool hasList: face === "list"
    readonly property bool hasReport: hasList || face === "empty"
    readonly property bool isWorking: face === "scanning" || screen.isMoving
    // Which list is looked up in the place of the candidates.
    property string panel: ""

    function showPanel(name: string) {
        panel = name
        if (name === "skipped")
            skippedPanel.takeFocus()
        else if (name === "ignored")
            ignoredPanel.takeFocus()
        else if (hasList)
            candidates.takeFocus()
    }

    title: screen.texts.title
    subtitle: screen.texts.subtitle
    usesFullWidth: true
    landings: [strip.cancelButton, candidates, placeholder]
    onFaceChanged: panel = ""

    actions: [
        KarvelloButton {
            objectName: "scan"
            visible: control.face !== "scanning" && control.face !== "denied"
            kind: control.hasReport ? KarvelloButton.Outline : KarvelloButton.Tonal
            iconName: control.hasReport ? "refresh" : "scan"
            text: control.screen.scanText
            enabled: control.screen.canScan
            disabledReason: control.screen.isBusy ? "" : control.screen.texts.needsAccess
            onClicked: control.screen.scan()
        },
        ExportMenu {
            visible: control.hasReport
            exportModel: control.screen.exportMenu
        }
    ]

    CleanupToolbar {
        id: toolbar
        Layout.fillWidth: true
        screen: control.screen
        onLeaveRequested: {
            if (control.hasList && control.panel === "")
                candidates.takeFocus()
        }
    }
    RowLayout {
        Layout.fillWidth: true
        Layout.topMargin: -KarvelloDesign.spacing8
        // The last button's words, not its edge, end with the list below.
        Layout.rightMargin: skippedButton.visible || ignoredButton.visible ? -skippedButton.horizontalPadding : 0
        visible: control.hasReport
        spacing: KarvelloDesign.spacing12

        KarvelloText {
            objectName: "summary"
            text: control.screen.summary
            textStyle: KarvelloDesign.small
            emphasis: KarvelloText.Strong
            color: KarvelloDesign.ink
        }
        Rectangle {
            visible: scannedAt.visible
            implicitWidth: 1
            implicitHeight: 12
            color: KarvelloDesign.line
        }
        KarvelloText {
            id: scannedAt
            Layout.fillWidth: true
            text: control.screen.scannedAt
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
        }
        KarvelloButton {
            id: skippedButton
            objectName: "skipped"
            visible: text !== ""
            kind: KarvelloButton.Quiet
            size: KarvelloButton.Small
            iconName: "lock"
            text: control.screen.skippedText
            onClicked: control.showPanel(control.panel === "skipped" ? "" : "skipped")
        }
        KarvelloButton {
            id: ignoredButton
            objectName: "ignored"
            visible: text !== ""
            kind: KarvelloButton.Quiet
            size: KarvelloButton.Small
            iconName: "hidden"
            text: control.screen.ignoredText
            onClicked: control.showPanel(control.panel === "ignored" ? "" : "ignored")
        }
    }
    KarvelloBanner {
        objectName: "banner"
        readonly property var content: control.screen.banner
        Layout.fillWidth: true
        visible: content !== null
        kind: content ? content.kind : KarvelloBanner.Notice
        title: content ? content.title : ""
        text: content ? content.text : ""
        iconName: content ? content.iconName : "info"
        actionText: content ? content.actionText : ""
        closeName: content && content.canClose ? control.screen.texts.close : ""
        onActionRequested: control.screen.followBanner()
        onCloseRequested: control.screen.closeBanner()
    }
    KarvelloProgressStrip {
        id: strip
        objectName: "progress"
        Layout.fillWidth: true
        visible: control.isWorking
        title: control.screen.progressTitle
        visiting: control.screen.visiting
        progress: control.screen.progress
        progressText: control.screen.progressText
        figures: control.screen.figures
        cancelText: control.screen.texts.cancel
        onCancelRequested: control.screen.cancel()
    }
    ScanFlow {
        objectName: "scanFlow"
        Layout.fillWidth: true
        visible: control.face === "scanning"
        screen: control.screen
    }
    KarvelloBanner {
        Layout.fillWidth: true
        visible: control.face === "scanning"
        text: control.screen.texts.scanHint
    }
    // Else the parts of a scan would spread over the page.
    Item {
        Layout.fillHeight: true
        visible: control.face === "scanning"
    }
    // Nothing to list: why, and what to do about it.
    Rectangle {
        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.minimumHeight: placeholder.implicitHeight
        visible: !control.hasList && control.face !== "scanning" && control.panel === ""
        radius: KarvelloDesign.cardRadius
        color: KarvelloDesign.elevated1
        border.color: KarvelloDesign.line

        KarvelloEmptyState {
            id: placeholder
            objectName: "placeholder"
            readonly property var words: control.screen.placeholder
            anchors.fill: parent
            isGoodNews: control.face === "empty"
            iconName: words.icon
            title: words.title
            text: words.text
            actionText: words.action
            actionIconName: words.actionIcon
            actionEnabled: control.face === "denied" || control.screen.canScan
            secondaryText: words.secondary ?? ""
            onActionRequested: control.screen.followPlaceholder()
            onSecondaryRequested: control.screen.openSettings()
        }
    }
    Item {
        Layout.fillWidth: true
        Layout.fillHeight: true
        visible: control.hasList && control.panel === ""

        // No higher than its rows.
        Rectangle {
            objectName: "sheet"
            width: parent.width
            height: control.screen.isEverythingFiltered ? parent.height
                : Math.min(parent.height, Math.max(320, Math.ceil(candidates.contentHeight) + 2))
            radius: KarvelloDesign.cardRadius
            color: KarvelloDesign.elevated1
            border.color: KarvelloDesign.line
            opacity: control.screen.isMoving ? 0.55 : 1

            CandidateList {
                id: candidates
                objectName: "candidateList"
                anchors.fill: parent
                visible: !control.screen.isEverythingFiltered
                screen: control.screen
            }
            KarvelloEmptyState {
                anchors.fill: parent
                visible: control.screen.isEverythingFiltered
                iconName: "search"
                title: control.screen.texts.filteredTitle
                text: control.screen.texts.filteredText
                actionText: control.screen.texts.clearFilters
                onActionRequested: control.screen.clearFilters()
            }
        }
    }
    SkippedPanel {
        id: skippedPanel
        Layout.fillWidth: true
        Layout.fillHeight: control.panel === "skipped"
        Layout.preferredHeight: implicitHeight
        visible: control.panel === "skipped" || control.face === "empty" && control.panel === "" && listCount > 0
        isClosable: control.panel === "skipped"
        screen: control.screen
        onCloseRequested: control.showPanel("")
    }
    IgnoredPanel {
        id: ignoredPanel
        Layout.fillWidth: true
        Layout.fillHeight: true
        visible: control.panel === "ignored"
        screen: control.screen
        onCloseRequested: control.showPanel("")
    }

    footer: [
        KarvelloFooter {
            Layout.fillWidth: true
            objectName: "footer"
            sideMargin: control.sideMargin
            title: control.screen.selectionTitle
            text: control.screen.texts.trashOnly
            pills: control.screen.selectionPills
            checkState: control.screen.selectionState
            checkBoxName: KarvelloDesign.spoken([control.screen.texts.selectAll, control.screen.selectionValue])
            clearText: control.screen.texts.clear
            canClear: control.screen.hasSelection && !control.screen.isBusy
            selectAllText: control.screen.texts.selectAll
            canSelectAll: control.screen.canSelectAll
            moreName: control.screen.texts.more
            primaryText: control.screen.texts.moveToTrash
            canAct: control.screen.hasSelection && !control.screen.isBusy
            isBusy: control.screen.isMoving
            onClearRequested: control.screen.clearSelection()
            onSelectAllRequested: control.screen.selectAll()
            onToggleAllRequested: control.screen.toggleAll()
            onPrimaryRequested: control.screen.askToClean()
        }
    ]

    Shortcut {
        sequence: "Ctrl+R"
        enabled: control.visible && control.screen.canScan
        onActivated: control.screen.scan()
    }
    Shortcut {
        sequence: "Ctrl+F"
        enabled: control.visible && control.screen.canFilter
        onActivated: toolbar.focusSearch()
    }
    Shortcut {
        sequence: "Ctrl+A"
        enabled: control.visible && control.screen.canSelectAll
        onActivated: control.screen.selectAll()
    }
    Shortcut {
        sequence: "Ctrl+Shift+A"
        enabled: control.visible && control.screen.hasSelection
        onActivated: control.screen.clearSelection()
    }
    Shortcut {
        sequences: ["Ctrl+Return", "Ctrl+Enter"]
        enabled: control.visible && control.screen.hasSelection
        onActivated: control.screen.askToClean()
    }
    Shortcut {
        sequence: "Escape"
        enabled: control.visible && control.isWorking
        onActivated: strip.focusCancel()
    }
}
