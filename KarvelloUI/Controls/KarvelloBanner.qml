import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design

// Caution, review and accent need attention and are alerts; a notice is only to know.
T.Control {
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
    readonly property int spokenRole: isNotice ? Accessible.Note : Accessible.AlertMessage
    readonly property color ink: [KarvelloDesign.ink3, KarvelloDesign.accent, KarvelloDesign.caution, KarvelloDesign.review][kind]
    readonly property color ground: [KarvelloDesign.elevated2, KarvelloDesign.accentSoft, KarvelloDesign.cautionSoft,
        KarvelloDesign.reviewSoft][kind]

    signal actionRequested()
    signal closeRequested()

    implicitWidth: 480
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    horizontalPadding: KarvelloDesign.spacing16
    verticalPadding: KarvelloDesign.spacing12

    Accessible.role: spokenRole
    // A control of Qt takes its own role once an assistant is there, whatever was bound.
    Accessible.onRoleChanged: if (Accessible.role !== spokenRole) Accessible.role = spokenRole
    onSpokenRoleChanged: Accessible.role = spokenRole
    Accessible.name: title !== "" ? title : text
    Accessible.description: title !== "" ? text : ""

    contentItem: RowLayout {
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

    background: Rectangle {
        radius: KarvelloDesign.bannerRadius
        color: control.ground
        border.width: control.isNotice ? 1 : 0
        border.color: KarvelloDesign.line
    }
}
