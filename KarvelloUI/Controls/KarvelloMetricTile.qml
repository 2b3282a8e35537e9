import QtQuick
import QtQuick.Layouts
import Karvello.Design

// A figure of the system with its course. What lies in it, a bar for instance, takes the place of the course.
Rectangle {
    id: control

    default property alias content: body.data
    property string iconName
    property string name
    // A word at the right of the name, and the first to go when there is no room; or a pill.
    property string note
    property string pillText
    property int pillKind: KarvelloDesign.NeutralPill
    property string figure
    property string unit
    property string text
    property list<real> samples
    property string emptyText
    property bool showsCourse: true
    // What is said of the course.
    property string accessibleValue
    // On its own, instead of as a part of a card.
    property bool isCard: false
    property int padding: KarvelloDesign.spacing20

    // From widths that no layout decides, so that what it shows does not depend on itself.
    readonly property bool isRoomForNote: icon.width + nameText.implicitWidth + noteText.implicitWidth
        + 2 * KarvelloDesign.spacing8 <= width - 2 * padding

    implicitWidth: 176
    implicitHeight: Math.ceil(column.implicitHeight) + 2 * padding
    radius: KarvelloDesign.cardRadius
    color: isCard ? KarvelloDesign.elevated1 : "transparent"
    border.color: KarvelloDesign.line
    border.width: isCard ? 1 : 0

    Accessible.role: Accessible.Indicator
    Accessible.name: KarvelloDesign.spoken([name, figure, unit, text])
    Accessible.description: KarvelloDesign.spoken([pillText, accessibleValue])

    ColumnLayout {
        id: column
        x: control.padding
        y: control.padding
        width: parent.width - 2 * control.padding
        height: parent.height - 2 * control.padding
        spacing: 0

        RowLayout {
            // With or without a pill, tiles side by side have their figures at one height.
            Layout.minimumHeight: Math.round(20 * KarvelloDesign.textFactor)
            Layout.bottomMargin: KarvelloDesign.spacing12
            spacing: KarvelloDesign.spacing8

            KarvelloIcon {
                id: icon
                name: control.iconName
                tint: KarvelloDesign.ink2
            }
            KarvelloText {
                id: nameText
                Layout.fillWidth: true
                text: control.name
                Accessible.ignored: true
            }
            KarvelloText {
                id: noteText
                visible: control.note !== "" && control.isRoomForNote
                text: control.note
                textStyle: KarvelloDesign.label
                color: KarvelloDesign.ink4
                Accessible.ignored: true
            }
            KarvelloPill {
                visible: text !== ""
                text: control.pillText
                kind: control.pillKind
                Accessible.ignored: true
            }
        }
        Flow {
            Layout.fillWidth: true
            spacing: KarvelloDesign.spacing8

            KarvelloText {
                id: figureText
                width: Math.min(implicitWidth, parent.width)
                text: control.figure
                textStyle: KarvelloDesign.title
                color: KarvelloDesign.ink
                Accessible.ignored: true
            }
            KarvelloText {
                readonly property bool isBeside: figureText.width + parent.spacing + implicitWidth <= parent.width

                width: Math.min(implicitWidth, parent.width)
                height: isBeside ? figureText.implicitHeight - 3 : implicitHeight
                visible: text !== ""
                text: control.unit
                color: KarvelloDesign.ink3
                verticalAlignment: Text.AlignBottom
                Accessible.ignored: true
            }
        }
        KarvelloText {
            Layout.fillWidth: true
            visible: text !== ""
            text: control.text
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        Item {
            Layout.fillHeight: true
            Layout.minimumHeight: KarvelloDesign.spacing12
        }
        ColumnLayout {
            id: body
            visible: children.length > 0
            spacing: KarvelloDesign.spacing8
        }
        KarvelloSparkline {
            Layout.fillWidth: true
            visible: control.showsCourse && body.children.length === 0
            samples: control.samples
            emptyText: control.emptyText
        }
    }
}
