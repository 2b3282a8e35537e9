import QtQuick
import QtQuick.Layouts
import Karvello.Design

// Caution, review and accent need attention and are alerts; a notice is only to know.
Rectangle {
    id: control

    enum Kind { Notice, Accent, Caution, Review }

    property int kind: KarvelloBanner.Notice
    property string title
    property string text
    property string iconName: kind === KarvelloBanner.Caution || kind === KarvelloBanner.Review ? "warning" : "info"
    property string actionText
    // With a name, there is a button that takes the banner away.
    property string closeName

    readonly property bool isNotice: kind === KarvelloBanner.Notice
    readonly property color ink: [KarvelloDesign.ink3, KarvelloDesign.accent, KarvelloDesign.caution, KarvelloDesign.review][kind]
    readonly property color ground: [KarvelloDesign.elevated2, KarvelloDesign.accentSoft, KarvelloDesign.cautionSoft,
        KarvelloDesign.reviewSoft][kind]

    signal actionRequested()
    signal closeRequested()

    implicitWidth: 480
    implicitHeight: row.implicitHeight + 2 * KarvelloDesign.spacing12
    radius: KarvelloDesign.bannerRadius
    color: ground
    border.width: isNotice ? 1 : 0
    border.color: KarvelloDesign.line

    Accessible.role: isNotice ? Accessible.Note : Accessible.AlertMessage
    Accessible.name: title !== "" ? title : text
    Accessible.description: title !== "" ? text : ""

    RowLayout {
        id: row
        x: KarvelloDesign.spacing16
        y: KarvelloDesign.spacing12
        width: parent.width - 2 * KarvelloDesign.spacing16
        spacing: KarvelloDesign.spacing12

        KarvelloIcon {
            Layout.alignment: control.title === "" ? Qt.AlignVCenter : Qt.AlignTop
            name: control.iconName
            tint: control.ink
            size: 18
        }
        ColumnLayout {
            spacing: 0
            KarvelloText {
                Layout.fillWidth: true
                visible: text !== ""
                text: control.title
                emphasis: KarvelloText.Strong
                color: KarvelloDesign.ink
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            KarvelloText {
                Layout.fillWidth: true
                visible: text !== ""
                text: control.text
                textStyle: control.title === "" ? KarvelloDesign.body : KarvelloDesign.small
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
        }
        KarvelloButton {
            visible: text !== ""
            text: control.actionText
            size: KarvelloButton.Small
            onClicked: control.actionRequested()
        }
        KarvelloButton {
            visible: accessibleName !== ""
            kind: KarvelloButton.Quiet
            size: KarvelloButton.Small
            iconName: "close"
            accessibleName: control.closeName
            onClicked: control.closeRequested()
        }
    }
}
