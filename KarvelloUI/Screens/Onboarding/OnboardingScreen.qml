// Parts of this file know the ids around them. The pragma that would say so breaks loaders and inline parts in Qt 6.4.
// qmllint disable unqualified
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design
import Karvello.Screens.Onboarding

// The first run. The left half speaks, the right half has the steps; the language comes first, and holds at once. Small
// windows and large texts let each half scroll.
FocusScope {
    id: control

    required property OnboardingScreenModel screen

    readonly property int margin: width < 1200 ? KarvelloDesign.spacing32 : 72

    Accessible.role: Accessible.Pane
    Accessible.name: screen.eyebrow

    component Half: Flickable {
        id: half
        default property alias content: column.data
        property int maximumWidth: 568
        property int sideMargin: control.margin

        contentWidth: width
        contentHeight: Math.max(height, column.implicitHeight + 2 * KarvelloDesign.spacing32)
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        T.ScrollBar.vertical: KarvelloScrollBar {}

        ColumnLayout {
            id: column
            x: half.sideMargin
            y: Math.round((half.contentHeight - implicitHeight) / 2)
            width: Math.min(half.maximumWidth, half.width - 2 * half.sideMargin)
            spacing: KarvelloDesign.spacing12
        }
    }

    Rectangle {
        id: left
        width: Math.round(parent.width * 0.45)
        height: parent.height
        color: KarvelloDesign.sidebar

        RowLayout {
            id: brand
            x: control.margin
            y: KarvelloDesign.spacing32
            spacing: KarvelloDesign.spacing12
            KarvelloMark { size: 28 }
            KarvelloText {
                text: "Karvello"
                textStyle: KarvelloDesign.heading
                color: KarvelloDesign.ink
            }
        }
        Half {
            anchors.fill: parent
            anchors.topMargin: brand.y + brand.height
            maximumWidth: 440

            KarvelloText {
                Layout.fillWidth: true
                text: control.screen.eyebrow
                emphasis: KarvelloText.Strong
                color: KarvelloDesign.accent
            }
            KarvelloText {
                Layout.fillWidth: true
                text: control.screen.title
                textStyle: KarvelloDesign.onboardingTitle
                color: KarvelloDesign.ink
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
            }
            KarvelloText {
                Layout.fillWidth: true
                text: control.screen.body
                textStyle: KarvelloDesign.onboardingBody
                color: KarvelloDesign.ink2
                wrapMode: Text.Wrap
            }
            KarvelloBanner {
                Layout.fillWidth: true
                visible: control.screen.errorText !== ""
                kind: KarvelloBanner.Caution
                text: control.screen.errorText
            }
            KarvelloBanner {
                objectName: "notice"
                Layout.fillWidth: true
                visible: control.screen.noticeText !== ""
                title: control.screen.noticeTitle
                text: control.screen.noticeText
                closeName: control.screen.closeText
                onCloseRequested: control.screen.dismissNotice()
            }
            GridLayout {
                Layout.fillWidth: true
                Layout.topMargin: KarvelloDesign.spacing16
                columns: begin.implicitWidth + later.implicitWidth + columnSpacing <= parent.width ? 2 : 1
                columnSpacing: KarvelloDesign.spacing12
                rowSpacing: KarvelloDesign.spacing8

                KarvelloButton {
                    id: begin
                    objectName: "begin"
                    focus: true
                    kind: KarvelloButton.Primary
                    size: KarvelloButton.Large
                    text: control.screen.primaryText
                    iconName: control.screen.primaryIconName
                    enabled: control.screen.isPrimaryEnabled
                    onClicked: control.screen.begin()
                }
                KarvelloButton {
                    id: later
                    objectName: "later"
                    kind: KarvelloButton.Quiet
                    size: KarvelloButton.Large
                    text: control.screen.secondaryText
                    onClicked: control.screen.setUpLater()
                }
            }
            KarvelloText {
                Layout.fillWidth: true
                visible: text !== ""
                text: control.screen.skipCaption
                textStyle: KarvelloDesign.small
                color: KarvelloDesign.ink3
                wrapMode: Text.Wrap
            }
        }
        Rectangle {
            anchors.right: parent.right
            width: 1
            height: parent.height
            color: KarvelloDesign.line
        }
    }
    Half {
        anchors.left: left.right
        anchors.right: parent.right
        height: parent.height
        sideMargin: Math.max(KarvelloDesign.spacing32, Math.round((width - maximumWidth) / 2))

        KarvelloCard {
            Layout.fillWidth: true
            RowLayout {
                Layout.fillWidth: true
                spacing: KarvelloDesign.spacing16
                IconTile {
                    Layout.alignment: Qt.AlignTop
                    size: 36
                    color: KarvelloDesign.accentSoft
                    tint: KarvelloDesign.accent
                    name: "globe"
                }
                ColumnLayout {
                    spacing: KarvelloDesign.spacing4
                    KarvelloText {
                        Layout.fillWidth: true
                        text: control.screen.languageTitle
                        emphasis: KarvelloText.Strong
                        color: KarvelloDesign.ink
                        wrapMode: Text.Wrap
                    }
                    KarvelloText {
                        objectName: "languageText"
                        Layout.fillWidth: true
                        text: control.screen.languageText
                        color: KarvelloDesign.ink2
                        wrapMode: Text.Wrap
                    }
                }
                KarvelloDropDown {
                    objectName: "language"
                    Layout.alignment: Qt.AlignTop
                    Layout.preferredWidth: Math.max(220, implicitWidth)
                    accessibleName: control.screen.languageTitle
                    model: control.screen.languages
                    currentIndex: control.screen.languageIndex
                    onActivated: index => {
                        control.screen.chooseLanguage(index)
                        // It shows what is stored, whatever was pressed.
                        currentIndex = Qt.binding(() => control.screen.languageIndex)
                    }
                }
            }
        }
        // No layout: one that is hidden while its items go keeps looking at them, and the program crashes in it (Qt 6.4).
        Column {
            id: cards
            Layout.fillWidth: true
            spacing: KarvelloDesign.spacing12

            Repeater {
                model: control.screen.cards
                KarvelloCard {
                    id: card
                    required property var modelData
                    width: cards.width
                    RowLayout {
                        Layout.fillWidth: true
                        spacing: KarvelloDesign.spacing16
                        IconTile {
                            Layout.alignment: Qt.AlignTop
                            size: 36
                            color: KarvelloDesign.accentSoft
                            tint: KarvelloDesign.accent
                            name: card.modelData.iconName
                        }
                        ColumnLayout {
                            spacing: KarvelloDesign.spacing4
                            KarvelloText {
                                Layout.fillWidth: true
                                text: card.modelData.title
                                emphasis: KarvelloText.Strong
                                color: KarvelloDesign.ink
                                wrapMode: Text.Wrap
                            }
                            KarvelloText {
                                Layout.fillWidth: true
                                text: card.modelData.text
                                color: KarvelloDesign.ink2
                                wrapMode: Text.Wrap
                            }
                        }
                    }
                }
            }
        }
        KarvelloText {
            Layout.fillWidth: true
            Layout.topMargin: KarvelloDesign.spacing8
            text: control.screen.principles
            textStyle: KarvelloDesign.small
            color: KarvelloDesign.ink3
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
    }
}
