pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Karvello.Design

// The controls that whole screens are made of, set up as screens use them.
Window {
    id: window

    width: 1240
    height: 820
    visible: true
    color: KarvelloDesign.background

    RowLayout {
        anchors.fill: parent
        spacing: 0

        Rectangle {
            Layout.fillHeight: true
            implicitWidth: KarvelloDesign.textFactor >= 1.25 ? 264 : 224
            color: KarvelloDesign.sidebar

            ColumnLayout {
                anchors.fill: parent
                anchors.margins: KarvelloDesign.spacing12
                spacing: 2

                RowLayout {
                    Layout.margins: KarvelloDesign.spacing8
                    spacing: KarvelloDesign.spacing8
                    KarvelloMark {}
                    KarvelloText { text: "Karvello"; textStyle: KarvelloDesign.heading; color: KarvelloDesign.ink }
                }
                KarvelloSidebarItem { Layout.fillWidth: true; text: "Live Dashboard"; iconName: "dashboard" }
                KarvelloSidebarItem { Layout.fillWidth: true; text: "Cleanup Review"; iconName: "cleanup-review"; count: "42"; isSelected: true }
                KarvelloSidebarItem { Layout.fillWidth: true; text: "Nachweise und Überprüfungen"; iconName: "evidence"; objectName: "focused" }
                KarvelloSidebarGroup { Layout.fillWidth: true; Layout.topMargin: KarvelloDesign.spacing16; text: "Advanced"; isCollapsible: true }
                KarvelloSidebarItem { Layout.fillWidth: true; text: "Storage Map"; iconName: "storage-map" }
                KarvelloSidebarItem { Layout.fillWidth: true; text: "Large Files"; iconName: "large-files"; count: "14" }
                KarvelloSidebarGroup { Layout.fillWidth: true; Layout.topMargin: KarvelloDesign.spacing16; text: "Support" }
                KarvelloSidebarItem { Layout.fillWidth: true; text: "System Pulse"; iconName: "system-pulse" }
                Item { Layout.fillHeight: true }
                KarvelloStorageFoot {
                    Layout.fillWidth: true
                    title: "Storage"
                    freeText: "186 GB free"
                    usedText: "290 GB / 476 GB used"
                    usedFraction: 0.61
                }
            }
            Rectangle {
                anchors.right: parent.right
                width: 1
                height: parent.height
                color: KarvelloDesign.line
            }
        }
        KarvelloPage {
            Layout.fillWidth: true
            Layout.fillHeight: true
            title: "Cleanup Review"
            subtitle: "Safely review regenerable cache, log, and developer artifacts before moving them to Trash."
            actions: [
                KarvelloButton { text: "Scan Again"; iconName: "refresh" },
                KarvelloButton { iconName: "export"; accessibleName: "Export" }
            ]
            footer: KarvelloFooter {
                Layout.fillWidth: true
                title: "14 selected · 7.62 GB"
                text: "Cleanup moves items to Trash only; it does not permanently delete them."
                checkState: Qt.PartiallyChecked
                pills: [{ text: "12 Safe", kind: KarvelloDesign.SafePill }, { text: "2 Review", kind: KarvelloDesign.CautionPill }]
                clearText: "Clear"
                selectAllText: "Select All"
                primaryText: "Move Selected to Trash"
                canAct: true
            }

            RowLayout {
                spacing: KarvelloDesign.spacing8
                KarvelloPicker {
                    choices: [{ value: 1, text: "Standard" }, { value: 2, text: "Aggressive" }, { value: 3, text: "Direct" }]
                    currentValue: 1
                    onPicked: value => currentValue = value
                }
                KarvelloTextField {
                    Layout.fillWidth: true
                    iconName: "search"
                    clearName: "Clear"
                    placeholderText: "Search name, path, or reason"
                }
                KarvelloDropDown { model: ["All categories", "User Caches", "Developer Tool Caches"] }
                KarvelloPicker {
                    maximumWidth: 150
                    choices: [{ value: 1, text: "List" }, { value: 2, text: "Category" }, { value: 3, text: "Safety" }]
                    currentValue: 3
                    onPicked: value => currentValue = value
                }
            }
            KarvelloProgressStrip {
                Layout.fillWidth: true
                title: "Scanning safe default locations…"
                visiting: "Visiting ~/.var/app/org.kde.krita/cache/qtshadercache-x86_64-little_endian-lp64"
                progress: 0.62
                progressText: "62%"
                cancelText: "Cancel Operation"
                figures: [{ value: "184,206", label: "Scanned" }, { value: "27", label: "Candidates" },
                    { value: "6", label: "Skipped" }, { value: "3 / 5", label: "Locations" }]
            }
            RowLayout {
                spacing: KarvelloDesign.spacing16
                Repeater {
                    model: 3
                    KarvelloMetricTile {
                        required property int index
                        Layout.fillWidth: true
                        Layout.fillHeight: true
                        Layout.preferredWidth: 1
                        isCard: true
                        iconName: ["memory", "thermal", "cpu"][index]
                        name: ["Memory", "Thermal State", "CPU"][index]
                        note: index === 2 ? "Now" : ""
                        pillText: ["Normal", "Nominal", ""][index]
                        pillKind: KarvelloDesign.SafePill
                        figure: ["57%", "Nominal", "18%"][index]
                        unit: ["8.9 / 15.6 GB", "", ""][index]
                        text: ["Estimated from the current snapshot", "Not a sensor temperature · public thermal pressure level",
                            "Sampled every second"][index]
                        samples: index === 2 ? [] : [0.5, 0.55, 0.52, 0.6, 0.58, 0.57]
                        emptyText: "No samples"
                    }
                }
            }
            KarvelloCard {
                Layout.fillWidth: true
                KarvelloEmptyState {
                    Layout.fillWidth: true
                    isGoodNews: true
                    title: "No cleanup candidates"
                    text: "The safe default locations are empty or recently modified items were skipped."
                    actionText: "Scan Again"
                    actionIconName: "refresh"
                    secondaryText: "Scan Settings"
                }
            }
        }
    }
}
