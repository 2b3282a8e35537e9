import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Home

// Build and dependency folders in the user's own projects: what they are, and how long the project has been at rest.
KarvelloCard {
    id: control

    required property ProjectPanelModel panel

    title: panel.title
    subtitle: panel.subtitle
    headItem: KarvelloPill { text: control.panel.pillText }

    GridLayout {
        id: figures
        readonly property bool isStacked: width < 420 * KarvelloDesign.textFactor
        visible: control.panel.hasProjects
        columns: isStacked ? 1 : 3
        columnSpacing: KarvelloDesign.spacing16
        rowSpacing: KarvelloDesign.spacing8

        Repeater {
            model: control.panel.figures
            ColumnLayout {
                id: figure
                required property var entry

                Layout.fillWidth: true
                Layout.preferredWidth: 1
                Layout.alignment: Qt.AlignTop
                spacing: 0
                Accessible.role: Accessible.Indicator
                Accessible.name: KarvelloDesign.spoken([figure.entry.name, figure.entry.value])

                KarvelloText {
                    Layout.fillWidth: true
                    text: figure.entry.value
                    textStyle: KarvelloDesign.title
                    color: KarvelloDesign.ink
                    Accessible.ignored: true
                }
                KarvelloText {
                    Layout.fillWidth: true
                    text: figure.entry.name
                    textStyle: KarvelloDesign.small
                    color: KarvelloDesign.ink3
                    wrapMode: Text.Wrap
                    Accessible.ignored: true
                }
            }
        }
    }
    // No layout: one that is hidden while its items go keeps looking at them, and the program crashes in it (Qt 6.4).
    Column {
        Layout.fillWidth: true
        visible: control.panel.hasProjects

        Repeater {
            model: control.panel.projects
            ProjectRowItem { width: parent ? parent.width : 0 }
        }
    }
    RowLayout {
        visible: !control.panel.hasProjects
        spacing: KarvelloDesign.spacing12

        IconTile {
            Layout.alignment: Qt.AlignTop
            name: "folder"
        }
        ColumnLayout {
            spacing: 0
            KarvelloText {
                objectName: "noProjects"
                Layout.fillWidth: true
                text: control.panel.emptyTitle
                emphasis: KarvelloText.Medium
                color: KarvelloDesign.ink
                wrapMode: Text.Wrap
            }
            KarvelloText {
                Layout.fillWidth: true
                text: control.panel.emptyText
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                wrapMode: Text.Wrap
            }
        }
    }
    KarvelloText {
        Layout.fillWidth: true
        text: control.panel.note
        textStyle: KarvelloDesign.small
        color: KarvelloDesign.ink3
        wrapMode: Text.Wrap
    }
    Flow {
        Layout.fillWidth: true
        spacing: KarvelloDesign.spacing8

        KarvelloButton {
            objectName: "openProjectReview"
            size: KarvelloButton.Small
            text: control.panel.openReviewTitle
            width: Math.min(implicitWidth, parent.width)
            onClicked: control.panel.openReview()
        }
        KarvelloButton {
            objectName: "openProjectSettings"
            kind: KarvelloButton.Quiet
            size: KarvelloButton.Small
            text: control.panel.openSettingsTitle
            width: Math.min(implicitWidth, parent.width)
            onClicked: control.panel.openSettings()
        }
    }
}
