import QtQuick
import QtQuick.Layouts
import Karvello.Design

// One thing that asks for a look, and the button to where it is looked at.
Rectangle {
    id: control

    required property string iconName
    required property string detail
    required property string buttonTitle
    required property bool isCritical

    signal reviewRequested()
    // The keyboard has come here.
    signal reached()

    implicitHeight: row.implicitHeight + 2 * KarvelloDesign.spacing8
    radius: KarvelloDesign.bannerRadius
    color: isCritical ? KarvelloDesign.reviewSoft : KarvelloDesign.cautionSoft

    Accessible.role: Accessible.ListItem
    Accessible.name: detail

    RowLayout {
        id: row
        x: KarvelloDesign.spacing12
        y: KarvelloDesign.spacing8
        width: parent.width - 2 * KarvelloDesign.spacing12
        spacing: KarvelloDesign.spacing12

        KarvelloIcon {
            Layout.alignment: Qt.AlignTop
            Layout.topMargin: 1
            name: control.iconName
            tint: control.isCritical ? KarvelloDesign.review : KarvelloDesign.caution
        }
        ColumnLayout {
            spacing: 0

            KarvelloText {
                Layout.fillWidth: true
                text: control.detail
                color: KarvelloDesign.ink
                emphasis: KarvelloText.Medium
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            KarvelloButton {
                objectName: "review"
                Layout.leftMargin: -horizontalPadding
                Layout.maximumWidth: parent.width + horizontalPadding
                kind: KarvelloButton.Link
                size: KarvelloButton.Small
                text: control.buttonTitle
                Accessible.description: control.detail
                onClicked: control.reviewRequested()
                onActiveFocusChanged: {
                    if (activeFocus)
                        control.reached()
                }
            }
        }
    }
}
