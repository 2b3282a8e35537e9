pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Karvello.Design

// Every control in its kinds and states on one page, for the eye.
Window {
    id: window

    property string shownDialog

    width: 1240
    height: 820
    visible: true
    color: KarvelloDesign.background

    GridLayout {
        anchors.fill: parent
        anchors.margins: KarvelloDesign.spacing16
        columns: 2
        columnSpacing: KarvelloDesign.spacing16
        rowSpacing: KarvelloDesign.spacing16

        KarvelloCard {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.fillHeight: true
            title: "Buttons"
            subtitle: "One filled button on a screen, and only where something moves."
            headItem: KarvelloPill { text: "LIVE"; kind: KarvelloDesign.AccentPill }

            Flow {
                Layout.fillWidth: true
                spacing: KarvelloDesign.spacing8
                KarvelloButton { text: "Move Selected to Trash"; iconName: "trash"; kind: KarvelloButton.Primary }
                KarvelloButton { text: "Start New Scan"; iconName: "scan"; kind: KarvelloButton.Tonal }
                KarvelloButton { text: "Scan Again"; iconName: "refresh"; objectName: "focused" }
                KarvelloButton { text: "Clear"; kind: KarvelloButton.Quiet }
                KarvelloButton { text: "Open Duplicates"; kind: KarvelloButton.Link }
                KarvelloButton { iconName: "export"; accessibleName: "Export" }
                KarvelloButton { text: "Show Again"; size: KarvelloButton.Small }
                KarvelloButton { text: "Scanning"; isBusy: true; enabled: false }
                KarvelloButton { text: "Move"; enabled: false; kind: KarvelloButton.Primary }
                KarvelloButton { text: "Grant Access"; kind: KarvelloButton.Primary; size: KarvelloButton.Large; iconName: "folder" }
            }
            Flow {
                Layout.fillWidth: true
                spacing: KarvelloDesign.spacing8
                KarvelloPill { text: "Advisory only" }
                KarvelloPill { text: "Keeper"; kind: KarvelloDesign.AccentPill; iconName: "lock" }
                KarvelloPill { text: "Safe"; kind: KarvelloDesign.SafePill }
                KarvelloPill { text: "Caution"; kind: KarvelloDesign.CautionPill }
                KarvelloPill { text: "Manual Review"; kind: KarvelloDesign.ReviewPill }
            }
        }
        KarvelloCard {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.fillHeight: true
            title: "Choices"
            isFirstChoice: true

            Flow {
                Layout.fillWidth: true
                spacing: KarvelloDesign.spacing12
                KarvelloCheckBox { text: "Checked"; checkState: Qt.Checked }
                KarvelloCheckBox { text: "Mixed"; checkState: Qt.PartiallyChecked }
                KarvelloCheckBox { text: "Open" }
                KarvelloCheckBox { text: "Locked"; isLocked: true }
                KarvelloCheckBox { text: "Disabled"; enabled: false; checkState: Qt.Checked }
                KarvelloSwitch { text: "On"; checked: true }
                KarvelloSwitch { text: "Off" }
                KarvelloSwitch { text: "Disabled"; enabled: false }
            }
            RowLayout {
                spacing: KarvelloDesign.spacing12
                KarvelloSegmentedControl {
                    choices: ["Standard", "Aggressive", "Direct"]
                    accessibleName: "Scan mode"
                    onActivated: index => currentIndex = index
                }
                KarvelloSegmentedControl {
                    choices: ["Off", "Weekly"]
                    currentIndex: 1
                    enabled: false
                }
            }
            KarvelloTextField {
                Layout.fillWidth: true
                iconName: "search"
                clearName: "Clear"
                placeholderText: "Search name, path, or reason"
            }
            KarvelloTextField {
                Layout.fillWidth: true
                iconName: "search"
                clearName: "Clear"
                text: "firefox"
            }
        }
        KarvelloCard {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Layout.fillHeight: true
            title: "Figures"

            RowLayout {
                spacing: KarvelloDesign.spacing20
                KarvelloText { text: "39%"; textStyle: KarvelloDesign.display; color: KarvelloDesign.ink }
                KarvelloText { text: "186 GB free"; textStyle: KarvelloDesign.heading }
                Item { Layout.fillWidth: true }
                KarvelloRing { value: 0.39; text: "39%"; accessibleName: "Free space" }
                KarvelloRing { text: "–"; accessibleName: "Unknown" }
            }
            KarvelloProgressBar { Layout.fillWidth: true; value: 0.62; accessibleName: "Scan" }
            KarvelloProgressBar { Layout.fillWidth: true; indeterminate: true; tint: KarvelloDesign.lineStrong }
            RowLayout {
                spacing: KarvelloDesign.spacing20
                KarvelloSparkline {
                    Layout.fillWidth: true
                    samples: [0.3, 0.35, 0.5, 0.45, 0.42, 0.44, 0.28, 0.3, 0.38, 0.55, 0.28, 0.2, 0.1, 0.3, 0.4, 0.15, 0.5, 1, 0.7, 0.45, 0.4, 0.15, 0.2, 0.22]
                }
                KarvelloSparkline { Layout.fillWidth: true; emptyText: "No samples" }
            }
        }
        ColumnLayout {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            spacing: KarvelloDesign.spacing8
            Repeater {
                model: [
                    { kind: KarvelloBanner.Caution, title: "Read/enumeration access limited · 2",
                      text: "Verify the folder can be opened and grant access to the parent folder if needed.",
                      actionText: "Open Settings", closeName: "" },
                    { kind: KarvelloBanner.Review, title: "The scan failed", text: "The folder “cache” couldn’t be opened.",
                      actionText: "", closeName: "Close" },
                    { kind: KarvelloBanner.Accent, title: "3 items moved to Trash", text: "They can be put back.",
                      actionText: "", closeName: "" },
                    { kind: KarvelloBanner.Notice, title: "",
                      text: "Large folders can take time. Cancel stops only the current scan; no files are cleaned, and partial scan results are not applied.",
                      actionText: "", closeName: "" }
                ]
                KarvelloBanner {
                    required property var modelData
                    Layout.fillWidth: true
                    kind: modelData.kind
                    title: modelData.title
                    text: modelData.text
                    actionText: modelData.actionText
                    closeName: modelData.closeName
                }
            }
        }
        KarvelloCard {
            Layout.columnSpan: 2
            Layout.fillWidth: true
            padding: 1

            ColumnLayout {
                spacing: 0
                KarvelloSectionHeader {
                    Layout.fillWidth: true
                    name: "Safe"
                    count: "31 items"
                    note: "Auto-selected"
                    total: "7.11 GB"
                    checkState: Qt.PartiallyChecked
                }
                KarvelloListRow {
                    Layout.fillWidth: true
                    name: "_cacache"
                    path: "~/.npm/_cacache"
                    reason: "Package-manager caches that can often be downloaded again."
                    pillText: "Safe"
                    pillKind: KarvelloDesign.SafePill
                    age: "41 days"
                    size: "3.42 GB"
                    iconName: "archive"
                    isChecked: true
                    menuName: "Actions"
                }
                KarvelloListRow {
                    Layout.fillWidth: true
                    name: "cache2"
                    path: "~/.cache/mozilla/firefox/0a1b2c3d9ab.default-release/cache2"
                    reason: "Flagged because apps can regenerate this user cache when needed."
                    warning: "Firefox is running"
                    pillText: "Caution"
                    pillKind: KarvelloDesign.CautionPill
                    age: "3 days"
                    size: "742 MB"
                    iconName: "globe"
                    menuName: "Actions"
                }
                KarvelloListRow {
                    Layout.fillWidth: true
                    name: "<b>a name that is no markup</b>\nwith a second line"
                    path: "~/Projects/lantern-keeper/.godot"
                    reason: "Flagged because you explicitly added this folder; manual review is required."
                    pillText: "Manual Review"
                    pillKind: KarvelloDesign.ReviewPill
                    age: "52 days"
                    size: "1.94 GB"
                    isSelectable: false
                    menuName: "Actions"
                }
            }
        }
    }

    KarvelloDialog {
        objectName: "dialog"
        title: "Move selected items to Trash?"
        message: "This will move 14 selected items (7.62 GB) to Trash. Aggressive, caution, and manual-review items can affect running apps or developer tools. Continue only after reviewing paths."
        acceptText: "Move Selected to Trash"
        cancelText: "Cancel"

        KarvelloBanner {
            Layout.fillWidth: true
            kind: KarvelloBanner.Caution
            iconName: "hidden"
            text: "2 hidden selected items are included because of the current filters. Adjust filters to reveal and deselect hidden items, or cancel cleanup before moving items to Trash."
        }
        KarvelloText {
            Layout.fillWidth: true
            text: "After Trash is emptied, Karvello cannot restore those items. Recheck original paths and Trash locations first."
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            wrapMode: Text.Wrap
        }
    }
}
