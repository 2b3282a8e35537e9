import QtQuick
import QtQuick.Layouts
import Karvello.Design

// Rows that are open or narrow, with a menu and a drop-down open.
Window {
    id: window

    width: 1240
    height: 820
    visible: true
    color: KarvelloDesign.background

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: KarvelloDesign.spacing16
        spacing: KarvelloDesign.spacing16

        RowLayout {
            spacing: KarvelloDesign.spacing16
            KarvelloDropDown {
                id: dropDown
                model: [{ value: "all", text: "All categories" }, { value: "user", text: "User Caches" },
                    { value: "tool", text: "Developer Tool Caches" }]
                currentIndex: 1
                accessibleName: "Category"
                Component.onCompleted: popup.open()
            }
            KarvelloPicker {
                choices: ["One", "Two", "Three", "Four", "Five"].map((text, index) => ({ value: index, text: text }))
                currentValue: 2
            }
            Item { Layout.fillWidth: true }
        }
        KarvelloCard {
            Layout.fillWidth: true
            padding: 1

            ColumnLayout {
                spacing: 0
                KarvelloListRow {
                    id: row
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
                    isOpen: true
                    menuName: "Actions"
                    details: ColumnLayout {
                        KarvelloText { Layout.fillWidth: true; text: "/home/mira/.npm/_cacache"; wrapMode: Text.WrapAnywhere }
                        KarvelloButton { text: "Why is this listed?"; size: KarvelloButton.Small }
                    }
                    Component.onCompleted: menu.openAt(row, Qt.point(700, 60))

                    KarvelloMenu {
                        id: menu
                        accessibleName: "Actions"
                        KarvelloMenuItem { text: "Show in Files"; iconName: "folder" }
                        KarvelloMenuItem { text: "Hide for seven days"; iconName: "clock" }
                        KarvelloMenuItem { text: "Hide until shown again"; iconName: "hidden"; enabled: false }
                    }
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
            }
        }
        KarvelloCard {
            Layout.preferredWidth: 680
            padding: 1

            ColumnLayout {
                spacing: 0
                Repeater {
                    model: ["", "Firefox is running"]
                    KarvelloListRow {
                        required property string modelData
                        Layout.fillWidth: true
                        name: "cache2"
                        path: "~/.cache/mozilla/firefox/0a1b2c3d9ab.default-release/cache2"
                        reason: "Flagged because apps can regenerate this user cache when needed."
                        warning: modelData
                        pillText: "Manual Review"
                        pillKind: KarvelloDesign.ReviewPill
                        age: "3 days"
                        size: "742 MB"
                        iconName: "globe"
                        menuName: "Actions"
                    }
                }
            }
        }
        KarvelloFooter {
            Layout.preferredWidth: 700
            title: "14 selected · 7.62 GB"
            text: "Cleanup moves items to Trash only; it does not permanently delete them."
            pills: [{ text: "12 Safe", kind: KarvelloDesign.SafePill }]
            clearText: "Clear"
            selectAllText: "Select All"
            primaryText: "Move Selected to Trash"
            canAct: true
        }
        KarvelloFooter {
            Layout.fillWidth: true
            title: "No items selected"
            text: "Cleanup moves items to Trash only; it does not permanently delete them."
            clearText: "Clear"
            canClear: false
            selectAllText: "Select All"
            canSelectAll: false
            primaryText: "Move Selected to Trash"
            primaryDisabledReason: "Nothing is selected."
        }
        KarvelloFormRow {
            Layout.preferredWidth: 340
            name: "Text size"
            text: "For the dashboard and menu bar panel."
            KarvelloPicker {
                choices: [{ value: 0, text: "Standard" }, { value: 1, text: "Large" }, { value: 2, text: "Extra Large" }]
                currentValue: 1
            }
        }
        Item { Layout.fillHeight: true }
    }
}
