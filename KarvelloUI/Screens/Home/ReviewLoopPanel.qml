import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Home

// How often to be reminded of a review, of what, and when the last one was.
KarvelloCard {
    id: control

    required property ReviewLoopModel panel
    readonly property real roomBesideName: width - 2 * padding - KarvelloDesign.spacing12
        - Math.max(cadenceName.implicitWidth, profileName.implicitWidth)

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
    // The names stand above their controls where both have no room side by side.
    GridLayout {
        columns: cadence.naturalWidth > control.roomBesideName || profile.implicitWidth > control.roomBesideName ? 1 : 2
        columnSpacing: KarvelloDesign.spacing12
        rowSpacing: KarvelloDesign.spacing8

        KarvelloText {
            id: cadenceName
            Layout.fillWidth: true
            text: control.panel.cadenceTitle
            Accessible.ignored: true
        }
        KarvelloPicker {
            id: cadence
            readonly property real naturalWidth: Math.min(segmentsWidth, maximumWidth)
            objectName: "cadence"
            choices: control.panel.cadences
            currentValue: control.panel.cadence
            accessibleName: control.panel.cadenceTitle
            maximumWidth: control.width - 2 * control.padding
            onPicked: value => control.panel.chooseCadence(value)
        }
        KarvelloText {
            id: profileName
            Layout.fillWidth: true
            text: control.panel.profileTitle
            Accessible.ignored: true
        }
        KarvelloDropDown {
            id: profile
            objectName: "profile"
            Layout.maximumWidth: control.width - 2 * control.padding
            model: control.panel.profiles
            currentIndex: control.panel.profiles.findIndex(choice => choice.value === control.panel.profile)
            accessibleName: control.panel.profileTitle
            onActivated: index => {
                control.panel.chooseProfile(control.panel.profiles[index].value)
                // It shows what is stored, whatever was pressed.
                currentIndex = Qt.binding(
                    () => control.panel.profiles.findIndex(choice => choice.value === control.panel.profile))
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
            text: control.panel.openReviewTitle
            width: Math.min(implicitWidth, parent.width)
            onClicked: control.panel.openReview()
        }
    }
}
