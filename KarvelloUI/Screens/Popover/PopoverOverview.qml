import QtQuick
import QtQuick.Layouts
import Karvello.Design
import Karvello.Screens.Popover

// Storage, and below it the three figures that change by the second, side by side while they have room for their words.
ColumnLayout {
    id: control

    required property StatusPopoverModel popover

    spacing: KarvelloDesign.spacing16

    PopoverMeter {
        objectName: "storage"
        metric: control.popover.storage
        detail: control.popover.storageDetail
        isLarge: true
    }
    GridLayout {
        columns: KarvelloDesign.textFactor > 1.15 ? 1 : 3
        columnSpacing: KarvelloDesign.spacing16
        rowSpacing: KarvelloDesign.spacing12

        PopoverMeter {
            objectName: "cpu"
            Layout.preferredWidth: 1
            Layout.fillWidth: true
            metric: control.popover.cpu
        }
        PopoverMeter {
            objectName: "memory"
            Layout.preferredWidth: 1
            Layout.fillWidth: true
            metric: control.popover.memory
        }
        PopoverMeter {
            objectName: "thermal"
            Layout.preferredWidth: 1
            Layout.fillWidth: true
            metric: control.popover.thermal
        }
    }
}
