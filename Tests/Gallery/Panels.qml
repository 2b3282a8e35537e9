pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Karvello.Design

// Charts, the map, the timeline and rows of settings and duplicates.
Window {
    id: window

    width: 1240
    height: 900
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
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            title: "Map"
            headItem: KarvelloTreemapLegend {
                entries: [{ tint: KarvelloDesign.review, text: "75%+" }, { tint: KarvelloDesign.caution, text: "45%+" },
                    { tint: KarvelloDesign.heatmapMid, text: "20%+" }, { tint: KarvelloDesign.safe, text: "6%+" }]
            }
            KarvelloTreemap {
                Layout.fillWidth: true
                implicitHeight: 300
                accessibleName: "Storage Map"
                selectedId: "downloads"
                onSelected: id => selectedId = id
                cells: [
                    { id: "videos", name: "Videos", sizeText: "96.4 GB", countText: "412 items", tint: KarvelloDesign.review,
                      x: 0, y: 0, width: 0.53, height: 0.62 },
                    { id: "projects", name: "Projects", sizeText: "58.2 GB", countText: "18,240 items", partialText: "partial",
                      tint: KarvelloDesign.caution, x: 0, y: 0.62, width: 0.53, height: 0.38 },
                    { id: "flatpak", name: "Flatpak data", sizeText: "34.7 GB", countText: "9,120 items", tint: KarvelloDesign.heatmapMid,
                      x: 0.53, y: 0, width: 0.27, height: 0.46 },
                    { id: "downloads", name: "Downloads", sizeText: "27.9 GB", tint: KarvelloDesign.heatmapMid,
                      x: 0.8, y: 0, width: 0.2, height: 0.46 },
                    { id: "local", name: "Local data", sizeText: "21.3 GB", tint: KarvelloDesign.heatmapMid,
                      x: 0.53, y: 0.46, width: 0.27, height: 0.3 },
                    { id: "pictures", name: "Pictures", sizeText: "18.6 GB", tint: KarvelloDesign.safe,
                      x: 0.53, y: 0.76, width: 0.27, height: 0.24 },
                    { id: "steam", name: "Steam library", sizeText: "14.2 GB", tint: KarvelloDesign.safe,
                      x: 0.8, y: 0.46, width: 0.2, height: 0.24 },
                    { id: "documents", name: "Documents", sizeText: "7.84 GB", tint: KarvelloDesign.safe,
                      x: 0.8, y: 0.7, width: 0.09, height: 0.3 },
                    { id: "music", name: "Music", sizeText: "5.1 GB", tint: KarvelloDesign.safe,
                      x: 0.89, y: 0.7, width: 0.11, height: 0.14 },
                    { id: "caches", name: "Caches", sizeText: "4.62 GB", tint: KarvelloDesign.safe,
                      x: 0.89, y: 0.84, width: 0.09, height: 0.16 },
                    { id: "desktop", name: "Desktop", sizeText: "963 MB", tint: KarvelloDesign.safe,
                      x: 0.98, y: 0.84, width: 0.02, height: 0.16 }
                ]
            }
        }
        KarvelloCard {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            title: "Storage Evidence Timeline"
            subtitle: "Estimates, Trash moves, and recovered space stay separate."

            ColumnLayout {
                spacing: 0
                KarvelloTimelineRow {
                    Layout.fillWidth: true
                    title: "Current free space"
                    figure: "186 GB"
                    text: "186 GB free, 290 GB used. This is the current snapshot."
                    detail: "Current snapshot"
                }
                KarvelloTimelineRow {
                    Layout.fillWidth: true
                    kind: KarvelloTimelineRow.Estimate
                    title: "Cleanup scan estimate"
                    figure: "11.4 GB"
                    text: "11.4 GB is the latest cleanup scan estimate that still needs review. Nothing is moved to Trash before you choose items."
                    detail: "42 candidates · review required"
                    actionText: "Cleanup Review"
                }
                KarvelloTimelineRow {
                    Layout.fillWidth: true
                    kind: KarvelloTimelineRow.Opportunity
                    title: "Review opportunity"
                    figure: "38.6 GB"
                    text: "38.6 GB review opportunity in Large Files. It is not added to scan estimates as one recovery total."
                    detail: "14 items · review opportunity"
                    actionText: "Large Files"
                }
                KarvelloTimelineRow {
                    Layout.fillWidth: true
                    kind: KarvelloTimelineRow.Pending
                    isLast: true
                    title: "Trash move recorded"
                    date: "14 Nov"
                    figure: "2.24 GB"
                    text: "2.24 GB was moved to Trash. It is pending recovery; free space increases after Trash is emptied."
                    detail: "17 items · pending recovery"
                }
            }
        }
        KarvelloCard {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            title: "CPU Live Pulse"

            KarvelloChart {
                Layout.fillWidth: true
                Layout.fillHeight: true
                implicitHeight: 180
                samples: [0.28, 0.31, 0.5, 0.44, 0.4, 0.42, 0.24, 0.26, 0.33, 0.46, 0.23, 0.16, 0.07, 0.22, 0.33, 0.11, 0.48, 0.76, 0.58, 0.37, 0.34, 0.1, 0.17, 0.18]
                axisWords: ["100%", "50%", "0%"]
                startText: "24 samples"
                endText: "now"
            }
        }
        KarvelloCard {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            padding: 1

            ColumnLayout {
                spacing: 0
                KarvelloFormRow {
                    Layout.fillWidth: true
                    name: "Language"
                    KarvelloDropDown { model: ["English", "Deutsch", "日本語"] }
                }
                KarvelloFormRow {
                    Layout.fillWidth: true
                    name: "App appearance mode"
                    text: "Follow system appearance"
                    KarvelloPicker {
                        choices: [{ value: 0, text: "System" }, { value: 1, text: "Light" }, { value: 2, text: "Dark" }]
                        currentValue: 0
                    }
                }
                KarvelloFormRow {
                    Layout.fillWidth: true
                    name: "Home Folder Access"
                    text: "~ · granted 3 Oct"
                    isLast: true
                    KarvelloButton { text: "Change Access"; size: KarvelloButton.Small }
                    KarvelloButton { text: "Revoke Access"; size: KarvelloButton.Small; kind: KarvelloButton.Quiet }
                }
            }
        }
        KarvelloCard {
            Layout.columnSpan: 2
            Layout.fillWidth: true
            padding: 1
            ColumnLayout {
                spacing: 0
                KarvelloKeeperRow {
                    Layout.fillWidth: true
                    isKeeper: true
                    name: "festival-2025-final.mkv"
                    path: "~/Videos/Festival/festival-2025-final.mkv"
                    kindText: "Keeper"
                    reasons: ["preferred folder", "older copy"]
                    age: "214 days"
                    size: "1.83 GB"
                    iconName: "film"
                }
                KarvelloKeeperRow {
                    Layout.fillWidth: true
                    isLast: true
                    isChecked: true
                    name: "festival-2025-final (1).mkv"
                    path: "~/Downloads/festival-2025-final (1).mkv"
                    kindText: "Extra copy"
                    age: "198 days"
                    size: "1.83 GB"
                    iconName: "film"
                }
            }
        }
    }
}
