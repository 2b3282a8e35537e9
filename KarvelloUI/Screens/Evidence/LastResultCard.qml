import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Evidence

// What the last run did, and each item that it left alone, with the reason.
KarvelloCard {
    id: control

    required property LastResultModel result

    visible: result.hasResult
    title: result.title
    subtitle: result.subtitle

    KarvelloText {
        Layout.fillWidth: true
        visible: text !== ""
        text: control.result.failedTitle
        emphasis: KarvelloText.Medium
        color: KarvelloDesign.ink
    }
    KarvelloRows {
        Layout.fillWidth: true
        visible: count > 0
        maximumHeight: 240 * KarvelloDesign.textFactor
        accessibleName: control.result.failedTitle
        model: control.result.failedItems

        delegate: FailedItemRow { width: ListView.view.width }
    }
}
