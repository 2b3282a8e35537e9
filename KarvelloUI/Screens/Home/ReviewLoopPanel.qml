import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Home

// How often to be reminded of a review, of what, and when the last one was.
KarvelloCard {
    id: control

    required property ReviewLoopModel panel

    title: panel.title
    subtitle: panel.subtitle

    RowLayout {
        spacing: KarvelloDesign.spacing12

        IconTile {
            name: "calendar"
            color: control.panel.isDue ? KarvelloDesign.cautionSoft : KarvelloDesign.elevated3
            tint: control.panel.isDue ? KarvelloDesign.caution : KarvelloDesign.ink2
        }
        ColumnLayout {
            spacing: 0

            KarvelloText {
                objectName: "reviewStatus"
                Layout.fillWidth: true
                text: control.panel.statusText
                emphasis: control.panel.isDue ? KarvelloText.Strong : KarvelloText.Medium
                color: KarvelloDesign.ink
                wrapMode: Text.Wrap
            }
            KarvelloText {
                Layout.fillWidth: true
                visible: text !== ""
                text: control.panel.lastReviewText
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                wrapMode: Text.Wrap
            }
        }
    }
    Rectangle {
        Layout.fillWidth: true
        implicitHeight: 1
        color: KarvelloDesign.lineSoft
    }
    // The names stand beside their controls, or above them where there is no room for both.
    Item {
        id: choices
        // That of the card: known before the layouts inside of it have settled.
        readonly property real place: control.width - 2 * control.padding
        readonly property real room: place - KarvelloDesign.spacing12
            - Math.max(cadenceName.implicitWidth, profileName.implicitWidth)
        readonly property bool isBeside: cadence.implicitWidth <= room && profile.implicitWidth <= room
        readonly property real profileTop: cadence.y + cadence.height + KarvelloDesign.spacing8

        Layout.fillWidth: true
        implicitHeight: profile.y + profile.height

        KarvelloText {
            id: cadenceName
            y: choices.isBeside ? Math.round((cadence.height - height) / 2) : 0
            width: Math.min(implicitWidth, choices.place)
            text: control.panel.cadenceTitle
            Accessible.ignored: true
        }
        KarvelloPicker {
            id: cadence
            objectName: "cadence"
            x: choices.isBeside ? choices.place - width : 0
            y: choices.isBeside ? 0 : cadenceName.height + KarvelloDesign.spacing4
            width: Math.min(implicitWidth, choices.place)
            height: implicitHeight
            choices: control.panel.cadences
            currentValue: control.panel.cadence
            accessibleName: control.panel.cadenceTitle
            maximumWidth: choices.place
            onPicked: value => control.panel.chooseCadence(value)
        }
        KarvelloText {
            id: profileName
            y: choices.profileTop + (choices.isBeside ? Math.round((profile.height - height) / 2) : 0)
            width: Math.min(implicitWidth, choices.place)
            text: control.panel.profileTitle
            Accessible.ignored: true
        }
        KarvelloDropDown {
            id: profile
            objectName: "profile"
            x: choices.isBeside ? choices.place - width : 0
            y: choices.profileTop + (choices.isBeside ? 0 : profileName.height + KarvelloDesign.spacing4)
            width: Math.min(implicitWidth, choices.place)
            model: control.panel.profiles
            currentIndex: control.panel.profileIndex
            accessibleName: control.panel.profileTitle
            onActivated: index => {
                control.panel.chooseProfile(control.panel.profiles[index].value)
                // It shows what is stored, whatever was pressed.
                currentIndex = Qt.binding(() => control.panel.profileIndex)
            }
        }
    }
    ColumnLayout {
        spacing: 2

        KarvelloText {
            Layout.fillWidth: true
            text: control.panel.profileSummary
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            wrapMode: Text.Wrap
        }
        KarvelloText {
            Layout.fillWidth: true
            text: control.panel.guardrail
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            wrapMode: Text.Wrap
        }
    }
    KarvelloText {
        objectName: "reviewFailure"
        Layout.fillWidth: true
        visible: text !== ""
        text: control.panel.failureText
        textStyle: KarvelloDesign.small
        color: KarvelloDesign.review
        wrapMode: Text.Wrap
        Accessible.role: Accessible.AlertMessage
    }
    Flow {
        Layout.fillWidth: true
        spacing: KarvelloDesign.spacing8

        KarvelloButton {
            objectName: "markReviewed"
            size: KarvelloButton.Small
            text: control.panel.markReviewedTitle
            width: Math.min(implicitWidth, parent.width)
            onClicked: control.panel.markReviewed()
        }
        KarvelloButton {
            objectName: "openReview"
            kind: KarvelloButton.Link
            size: KarvelloButton.Small
            leftPadding: 0
            text: control.panel.openReviewTitle
            width: Math.min(implicitWidth, parent.width)
            onClicked: control.panel.openReview()
        }
    }
}
