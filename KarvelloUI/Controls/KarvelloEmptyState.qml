import QtQuick
import QtQuick.Layouts
import Karvello.Design

// Nothing yet, nothing found, or not allowed: what it is, why, and the one thing to do about it. In the middle of its place.
Item {
    id: control

    property string iconName: isGoodNews ? "done" : "scan"
    property string title
    property string text
    // Nothing was found, and that is what one hopes for.
    property bool isGoodNews: false
    property string actionText
    property string actionIconName
    property bool actionEnabled: true
    property string actionDisabledReason
    property string secondaryText
    property string secondaryIconName

    signal actionRequested()
    signal secondaryRequested()

    implicitWidth: 440 + 2 * KarvelloDesign.spacing20
    implicitHeight: Math.ceil(column.implicitHeight) + 2 * KarvelloDesign.spacing32

    Accessible.role: Accessible.Grouping
    Accessible.name: title
    Accessible.description: text

    ColumnLayout {
        id: column
        anchors.centerIn: parent
        width: Math.min(Math.round(440 * KarvelloDesign.textFactor), parent.width - 2 * KarvelloDesign.spacing20)
        spacing: KarvelloDesign.spacing8

        IconTile {
            Layout.alignment: Qt.AlignHCenter
            Layout.bottomMargin: KarvelloDesign.spacing12
            size: 56
            iconSize: 28
            radius: KarvelloDesign.bannerRadius
            color: control.isGoodNews ? KarvelloDesign.accentSoft : KarvelloDesign.elevated3
            tint: control.isGoodNews ? KarvelloDesign.accent : KarvelloDesign.ink3
            name: control.iconName
        }
        KarvelloText {
            Layout.fillWidth: true
            text: control.title
            textStyle: KarvelloDesign.heading
            color: KarvelloDesign.ink
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            Accessible.role: Accessible.Heading
        }
        KarvelloText {
            Layout.fillWidth: true
            visible: text !== ""
            text: control.text
            color: KarvelloDesign.ink3
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }
        GridLayout {
            readonly property bool isInOneLine:
                action.implicitWidth + columnSpacing + secondary.implicitWidth <= column.width

            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: KarvelloDesign.spacing12
            visible: control.actionText !== "" || control.secondaryText !== ""
            columns: isInOneLine ? 2 : 1
            columnSpacing: KarvelloDesign.spacing8
            rowSpacing: KarvelloDesign.spacing8

            KarvelloButton {
                id: action
                Layout.alignment: Qt.AlignHCenter
                Layout.maximumWidth: column.width
                visible: text !== ""
                kind: KarvelloButton.Tonal
                text: control.actionText
                iconName: control.actionIconName
                enabled: control.actionEnabled
                disabledReason: control.actionDisabledReason
                onClicked: control.actionRequested()
            }
            KarvelloButton {
                id: secondary
                Layout.alignment: Qt.AlignHCenter
                Layout.maximumWidth: column.width
                visible: text !== ""
                text: control.secondaryText
                iconName: control.secondaryIconName
                onClicked: control.secondaryRequested()
            }
        }
    }
}
