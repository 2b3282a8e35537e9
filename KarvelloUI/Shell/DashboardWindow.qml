// Parts of this file know the ids around them. The pragma that would say so breaks loaders and inline parts in Qt 6.4.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design
import Karvello.Shell
import Karvello.Screens.Cleanup
import Karvello.Screens.Duplicates
import Karvello.Screens.Evidence
import Karvello.Screens.Home
import Karvello.Screens.IOSGuide
import Karvello.Screens.Insights
import Karvello.Screens.Onboarding
import Karvello.Screens.Settings
import Karvello.Screens.StorageMap
import Karvello.Screens.System

// The dashboard: the sidebar, the screen of the selected section, and what is asked or told over it.
Window {
    id: window

    required property DashboardScreens screens

    color: KarvelloDesign.background

    // A screen is made when it is first shown, and stays as it was left.
    component Screen: Loader {
        id: loader

        property string section
        readonly property bool isSelected: window.screens.selectedSection === section

        anchors.fill: parent
        visible: isSelected
        enabled: isSelected
        focus: isSelected
        onIsSelectedChanged: if (isSelected) active = true
        Component.onCompleted: active = isSelected
    }

    Loader {
        anchors.fill: parent
        active: window.screens.isOnboardingShown
        focus: active
        sourceComponent: OnboardingScreen {
            focus: true
            screen: window.screens.onboarding
        }
    }
    FocusScope {
        id: dashboard

        anchors.fill: parent
        visible: !window.screens.isOnboardingShown
        enabled: visible
        focus: visible

        Repeater {
            model: 9
            Item {
                id: digit
                required property int index
                Shortcut {
                    sequence: "Ctrl+" + (digit.index + 1)
                    enabled: dashboard.visible
                    onActivated: {
                        window.screens.sidebar.selectAt(digit.index + 1)
                        sidebar.focusSelected(Qt.ShortcutFocusReason)
                    }
                }
            }
        }

        Shortcut {
            sequences: ["F1", "Ctrl+?"]
            enabled: dashboard.visible
            onActivated: shortcuts.open()
        }

        RowLayout {
            anchors.fill: parent
            spacing: 0

            Sidebar {
                id: sidebar
                Layout.fillHeight: true
                sidebar: window.screens.sidebar
            }
            ColumnLayout {
                spacing: 0

                ColumnLayout {
                    // As far from the edges as the page below.
                    readonly property int sideMargin: parent.width < 1000 ? KarvelloDesign.spacing24 : KarvelloDesign.spacing32
                    Layout.fillWidth: true
                    Layout.topMargin: KarvelloDesign.spacing16
                    Layout.leftMargin: sideMargin
                    Layout.rightMargin: sideMargin
                    // What is in a hidden item is not visible, so that would never bring it back.
                    visible: access.isWanted || notice.isWanted
                    spacing: KarvelloDesign.spacing8

                    KarvelloBanner {
                        id: access
                        Layout.fillWidth: true
                        readonly property bool isWanted: window.screens.messages.asksForAccess
                        visible: isWanted
                        kind: KarvelloBanner.Accent
                        iconName: "lock"
                        title: window.screens.messages.accessTitle
                        text: window.screens.messages.accessText
                        actionText: window.screens.messages.accessActionText
                        onActionRequested: window.screens.messages.grantAccess()
                    }
                    KarvelloBanner {
                        id: notice
                        Layout.fillWidth: true
                        readonly property bool isWanted: window.screens.messages.hasNotice
                        visible: isWanted
                        title: window.screens.messages.noticeTitle
                        text: window.screens.messages.noticeText
                        closeName: window.screens.messages.closeText
                        onCloseRequested: window.screens.messages.dismissNotice()
                    }
                }
                Item {
                    Layout.fillWidth: true
                    Layout.fillHeight: true

                    Screen {
                        section: "dashboard"
                        sourceComponent: HomeScreen { screen: window.screens.home }
                    }
                    Screen {
                        section: "cleanup"
                        sourceComponent: CleanupScreen { screen: window.screens.cleanup }
                    }
                    Screen {
                        section: "reviewEvidence"
                        sourceComponent: EvidenceScreen { screen: window.screens.evidence }
                    }
                    Screen {
                        section: "heatmap"
                        sourceComponent: StorageMapScreen { screen: window.screens.storageMap }
                    }
                    Screen {
                        section: "largeFiles"
                        sourceComponent: InsightListScreen { screen: window.screens.largeFiles }
                    }
                    Screen {
                        section: "downloads"
                        sourceComponent: InsightListScreen { screen: window.screens.downloads }
                    }
                    Screen {
                        section: "duplicates"
                        sourceComponent: DuplicatesScreen { screen: window.screens.duplicates }
                    }
                    Screen {
                        section: "security"
                        sourceComponent: InsightListScreen { screen: window.screens.installers }
                    }
                    Screen {
                        section: "system"
                        sourceComponent: SystemScreen { screen: window.screens.system }
                    }
                    Screen {
                        section: "cpuAnalysis"
                        sourceComponent: ReliefScreen { screen: window.screens.cpuAnalysis }
                    }
                    Screen {
                        section: "memoryAnalysis"
                        sourceComponent: ReliefScreen { screen: window.screens.memoryAnalysis }
                    }
                    Screen {
                        section: "iosGuide"
                        sourceComponent: IOSGuideScreen { screen: window.screens.iosGuide }
                    }
                    Screen {
                        section: "settings"
                        sourceComponent: SettingsScreen { screen: window.screens.settings }
                    }
                }
            }
        }
    }
    ConfirmationDialog {
        confirmation: window.screens.confirmation
    }
    AlertDialog {
        messages: window.screens.messages
    }
    ShortcutsDialog {
        id: shortcuts
        objectName: "shortcuts"
        settings: window.screens.settings
    }
}
