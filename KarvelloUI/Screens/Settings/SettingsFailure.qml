import QtQuick
import QtQuick.Layouts
import Karvello.Design

// What a group could not do, until somebody takes it away.
KarvelloBanner {
    Layout.fillWidth: true
    Layout.margins: KarvelloDesign.spacing12
    visible: text !== ""
    kind: KarvelloBanner.Review
}
