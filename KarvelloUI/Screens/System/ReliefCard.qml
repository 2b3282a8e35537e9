pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.System

// The running applications, which of them the user has selected, and the way to ask these to quit.
Rectangle {
    id: control

    required property ReliefScreenModel screen

    implicitHeight: column.implicitHeight
    radius: KarvelloDesign.cardRadius
    color: KarvelloDesign.elevated1
    border.color: KarvelloDesign.line

    Accessible.role: Accessible.Grouping
    Accessible.name: screen.reliefTitle

    ColumnLayout {
        id: column
        anchors.fill: parent
        spacing: 0

        RowLayout {
            Layout.margins: KarvelloDesign.spacing20
            Layout.topMargin: KarvelloDesign.spacing16
            Layout.bottomMargin: KarvelloDesign.spacing16
            spacing: KarvelloDesign.spacing16

            ColumnLayout {
                spacing: 2

                KarvelloText {
                    Layout.fillWidth: true
                    text: control.screen.reliefTitle
                    textStyle: KarvelloDesign.heading
                    color: KarvelloDesign.ink
                    Accessible.role: Accessible.Heading
                }
                KarvelloText {
                    Layout.fillWidth: true
                    text: control.screen.reliefBody
                    textStyle: KarvelloDesign.small
                    color: KarvelloDesign.ink3
                    wrapMode: Text.Wrap
                }
            }
            KarvelloButton {
                objectName: "refreshApps"
                size: KarvelloButton.Small
                iconName: "refresh"
                text: control.screen.refreshAppsTitle
                isBusy: control.screen.isRefreshing
                enabled: !control.screen.isRefreshing
                onClicked: control.screen.refreshApps()
            }
        }
        Rectangle {
            Layout.fillWidth: true
            implicitHeight: 1
            color: KarvelloDesign.line
        }
        KarvelloBanner {
            objectName: "limit"
            Layout.fillWidth: true
            Layout.margins: KarvelloDesign.spacing16
            visible: text !== ""
            text: control.screen.limit
            actionText: control.screen.monitorTitle
            onActionRequested: control.screen.openMonitor()
        }
        KarvelloRows {
            id: list
            objectName: "candidates"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.leftMargin: 1
            Layout.rightMargin: 1
            Layout.minimumHeight: Math.round(156 * KarvelloDesign.textFactor)
            Layout.preferredHeight: Layout.minimumHeight
            accessibleName: control.screen.reliefTitle
            model: control.screen.candidates

            delegate: ReliefRow {
                width: ListView.view.width
                focusPolicy: ListView.isCurrentItem ? Qt.StrongFocus : Qt.ClickFocus
                canToggle: !control.screen.isRequestingQuit
                onPressed: list.currentIndex = index
                onToggleRequested: control.screen.toggle(index)
            }

            KarvelloText {
                objectName: "empty"
                anchors.centerIn: parent
                width: Math.min(440, parent.width - 2 * KarvelloDesign.spacing20)
                visible: text !== ""
                text: control.screen.emptyTitle
                color: KarvelloDesign.ink3
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
        }
        RowLayout {
            objectName: "results"
            Layout.margins: KarvelloDesign.spacing16
            Layout.leftMargin: KarvelloDesign.spacing20
            visible: control.screen.results.length > 0
            spacing: KarvelloDesign.spacing12

            Accessible.role: control.screen.areAllSent ? Accessible.Note : Accessible.AlertMessage
            Accessible.name: KarvelloDesign.spoken(control.screen.results)

            KarvelloIcon {
                Layout.alignment: Qt.AlignTop
                name: control.screen.areAllSent ? "done" : "warning"
                tint: control.screen.areAllSent ? KarvelloDesign.accent : KarvelloDesign.caution
                size: 18
            }
            ColumnLayout {
                spacing: KarvelloDesign.spacing4

                Repeater {
                    model: control.screen.results.length

                    KarvelloText {
                        required property int index
                        Layout.fillWidth: true
                        text: control.screen.results[index] ?? ""
                        wrapMode: Text.Wrap
                    }
                }
            }
            KarvelloButton {
                objectName: "dismiss"
                Layout.alignment: Qt.AlignTop
                kind: KarvelloButton.Quiet
                size: KarvelloButton.Small
                iconName: "close"
                accessibleName: control.screen.closeTitle
                onClicked: control.screen.dismissResults()
            }
        }
        Item {
            Layout.fillWidth: true
            implicitHeight: Math.max(60, footer.implicitHeight + 2 * KarvelloDesign.spacing12)

            Rectangle {
                x: 1
                width: parent.width - 2
                height: parent.height - 1
                radius: KarvelloDesign.cardRadius - 1
                color: KarvelloDesign.elevated2
            }
            Rectangle {
                x: 1
                width: parent.width - 2
                height: parent.height / 2
                color: KarvelloDesign.elevated2
            }
            Rectangle {
                width: parent.width
                height: 1
                color: KarvelloDesign.line
            }
            RowLayout {
                id: footer
                x: KarvelloDesign.spacing20
                width: parent.width - 2 * x
                anchors.verticalCenter: parent.verticalCenter
                spacing: KarvelloDesign.spacing16

                KarvelloText {
                    objectName: "sentence"
                    Layout.fillWidth: true
                    text: control.screen.footerText
                    textStyle: KarvelloDesign.small
                    color: KarvelloDesign.ink3
                    wrapMode: Text.Wrap
                }
                // The hint of a button is laid out beside it; here it would push the button from its edge.
                Item {
                    implicitWidth: quit.implicitWidth
                    implicitHeight: quit.implicitHeight

                    KarvelloButton {
                        id: quit
                        objectName: "requestQuit"
                        kind: KarvelloButton.Primary
                        iconName: "quit"
                        text: control.screen.quitTitle
                        isBusy: control.screen.isRequestingQuit
                        enabled: control.screen.canRequestQuit
                        disabledReason: control.screen.quitDisabledReason
                        onClicked: control.screen.requestQuit()
                    }
                }
            }
        }
    }
}
