import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Exports
import Karvello.Screens.Insights

// The page of a screen over the insights session. Its content shows only while there are results; before and between them
// stands what to do, or what goes on.
KarvelloPage {
    id: page

    required property InsightScreenModel insights
    default property alias results: resultsSlot.data

    readonly property bool hasResults: insights.content === InsightScreenModel.Results
    readonly property bool isWorking: insights.content === InsightScreenModel.Scanning || insights.isCleaning

    title: insights.title
    subtitle: insights.subtitle
    usesFullWidth: true
    landings: [strip.cancelButton, resultsSlot]

    actions: [
        KarvelloButton {
            objectName: "scan"
            visible: page.hasResults || page.insights.content === InsightScreenModel.Nothing
            kind: KarvelloButton.Tonal
            iconName: "refresh"
            text: page.insights.scanText
            enabled: page.insights.canScan
            disabledReason: page.insights.scanDisabledReason
            onClicked: page.insights.scan()
        },
        ExportMenu {
            objectName: "export"
            visible: page.hasResults
            exportModel: page.insights.exports
        }
    ]

    Shortcut {
        enabled: page.visible && page.insights.canScan
        sequence: "Ctrl+R"
        onActivated: page.insights.scan()
    }
    Shortcut {
        enabled: page.visible && page.isWorking
        sequence: "Esc"
        onActivated: strip.focusCancel()
    }

    KarvelloBanner {
        objectName: "banner"
        Layout.fillWidth: true
        visible: page.insights.banner !== InsightScreenModel.NoBanner
        kind: page.insights.banner === InsightScreenModel.FailedBanner ? KarvelloBanner.Review : KarvelloBanner.Accent
        iconName: page.insights.banner === InsightScreenModel.FailedBanner ? "warning" : "done"
        title: page.insights.bannerTitle
        text: page.insights.bannerText
        actionText: page.insights.bannerActionText
        closeName: page.insights.bannerCloseName
        onActionRequested: page.insights.runBannerAction()
        onCloseRequested: page.insights.closeBanner()
    }
    KarvelloProgressStrip {
        id: strip
        objectName: "strip"
        Layout.fillWidth: true
        visible: page.isWorking
        title: page.insights.workTitle
        visiting: page.insights.visiting
        progress: page.insights.progress
        progressText: page.insights.progressText
        figures: page.insights.figures
        cancelText: page.insights.cancelText
        isCancelling: page.insights.isCancelling
        onCancelRequested: page.insights.cancel()
    }
    KarvelloBanner {
        objectName: "notice"
        Layout.fillWidth: true
        visible: text !== ""
        text: page.isWorking ? page.insights.workHint : page.insights.noticeText
    }
    Rectangle {
        Layout.fillWidth: true
        Layout.fillHeight: true
        implicitHeight: blank.implicitHeight
        visible: !page.hasResults && !page.isWorking
        radius: KarvelloDesign.cardRadius
        color: KarvelloDesign.elevated1
        border.color: KarvelloDesign.line

        KarvelloEmptyState {
            id: blank
            objectName: "blank"
            anchors.fill: parent
            iconName: page.insights.blankIconName
            title: page.insights.blankTitle
            text: page.insights.blankText
            isGoodNews: page.insights.isBlankGoodNews
            actionText: page.insights.blankActionText
            actionIconName: page.insights.content === InsightScreenModel.Denied ? "lock" : "scan"
            onActionRequested: page.insights.runBlankAction()
        }
    }
    ColumnLayout {
        id: resultsSlot
        Layout.fillWidth: true
        Layout.fillHeight: true
        visible: page.hasResults
        enabled: !page.insights.isCleaning
        opacity: page.insights.isCleaning ? 0.55 : 1
        spacing: KarvelloDesign.spacing16
    }
    Item {
        Layout.fillHeight: true
        visible: page.isWorking && !page.hasResults
    }
}
