import QtQuick
import QtQuick.Layouts
import Karvello.Design

// A sheet of the page: a head with a heading, a small line and something at its right, then the content.
Rectangle {
    id: control

    default property alias content: body.data
    property alias headItem: head.data
    property string title
    property string subtitle
    // The one that is recommended among its neighbours.
    property bool isFirstChoice: false
    property int padding: KarvelloDesign.spacing20
    // The content takes the height that neighbours give the card.
    property bool fillsHeight: false

    implicitWidth: column.implicitWidth + 2 * padding
    implicitHeight: column.implicitHeight + 2 * padding
    radius: KarvelloDesign.cardRadius
    color: KarvelloDesign.elevated1
    border.color: isFirstChoice ? KarvelloDesign.accent : KarvelloDesign.line

    Accessible.role: Accessible.Grouping
    Accessible.name: title

    ColumnLayout {
        id: column
        x: control.padding
        y: control.padding
        width: parent.width - 2 * control.padding
        height: control.fillsHeight ? parent.height - 2 * control.padding : implicitHeight
        spacing: KarvelloDesign.spacing12

        RowLayout {
            visible: control.title !== ""
            spacing: KarvelloDesign.spacing12

            ColumnLayout {
                spacing: 2
                KarvelloText {
                    Layout.fillWidth: true
                    text: control.title
                    textStyle: KarvelloDesign.heading
                    color: KarvelloDesign.ink
                    wrapMode: Text.Wrap
                    Accessible.role: Accessible.Heading
                }
                KarvelloText {
                    Layout.fillWidth: true
                    visible: text !== ""
                    text: control.subtitle
                    textStyle: KarvelloDesign.small
                    color: KarvelloDesign.ink3
                    wrapMode: Text.Wrap
                }
            }
            RowLayout {
                id: head
                Layout.fillWidth: false
                Layout.alignment: Qt.AlignTop
                spacing: KarvelloDesign.spacing8
            }
        }
        ColumnLayout {
            id: body
            Layout.fillHeight: control.fillsHeight
            // Without anything in it, the head is all.
            Layout.topMargin: implicitHeight > 0 || control.title === "" ? 0 : -KarvelloDesign.spacing12
            spacing: KarvelloDesign.spacing12
        }
    }
}
