import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Karvello.Design

// Primary commits, and there is one on a screen. Tonal looks and scans, Outline is everything else, Quiet steps back, Link
// leads elsewhere. A button without a text needs an `accessibleName`, which is its tool tip as well.
T.Button {
    id: control

    enum Kind { Primary, Tonal, Outline, Quiet, Link }
    enum Size { Small, Regular, Large }

    property int kind: KarvelloButton.Outline
    property int size: KarvelloButton.Regular
    property string iconName
    property string accessibleName: text
    // Why it cannot be pressed.
    property string disabledReason
    property bool isBusy: false

    readonly property bool isSmall: size === KarvelloButton.Small
    readonly property bool isLink: kind === KarvelloButton.Link
    readonly property bool isStrong: kind === KarvelloButton.Primary || kind === KarvelloButton.Tonal
    readonly property real baseHeight: isSmall ? 28 : size === KarvelloButton.Large ? 40 : 34
    readonly property color ink: !enabled ? KarvelloDesign.ink4
        : kind === KarvelloButton.Primary ? KarvelloDesign.accentForeground
        : kind === KarvelloButton.Tonal || isLink ? KarvelloDesign.accent
        : kind === KarvelloButton.Outline ? KarvelloDesign.ink : KarvelloDesign.ink2
    readonly property color restingFill: kind === KarvelloButton.Primary ? KarvelloDesign.accent
        : kind === KarvelloButton.Tonal ? KarvelloDesign.accentSoft
        : kind === KarvelloButton.Outline ? KarvelloDesign.elevated1 : "transparent"
    readonly property color hoverFill: kind === KarvelloButton.Primary ? KarvelloDesign.accentDeep
        : kind === KarvelloButton.Tonal ? Qt.tint(KarvelloDesign.accentSoft, Qt.alpha(KarvelloDesign.accent, 0.1))
        : kind === KarvelloButton.Outline ? KarvelloDesign.elevated2
        : isLink ? "transparent" : KarvelloDesign.elevated3

    implicitHeight: Math.max(Math.round(baseHeight * KarvelloDesign.textFactor), implicitContentHeight + topPadding + bottomPadding)
    implicitWidth: text === "" ? implicitHeight
        : Math.max(size !== KarvelloButton.Small && !isLink && kind !== KarvelloButton.Quiet ? 88 : 28,
                   implicitContentWidth + leftPadding + rightPadding)
    horizontalPadding: text === "" || isLink ? KarvelloDesign.spacing4 : isSmall ? 10 : 14
    verticalPadding: KarvelloDesign.spacing4
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    opacity: down ? 0.92 : 1

    KarvelloSpoken.role: Accessible.Button
    Accessible.name: accessibleName
    Accessible.description: enabled ? "" : disabledReason
    Accessible.onPressAction: {
        if (control.enabled)
            control.clicked()
    }
    Keys.onReturnPressed: event => {
        if (!event.isAutoRepeat)
            control.clicked()
    }
    Keys.onEnterPressed: event => {
        if (!event.isAutoRepeat)
            control.clicked()
    }

    contentItem: RowLayout {
        spacing: 0

        Item { Layout.fillWidth: true }
        BusyArc {
            visible: control.isBusy
            tint: control.ink
        }
        KarvelloIcon {
            visible: !control.isBusy && control.iconName !== ""
            name: control.iconName
            tint: control.ink
        }
        KarvelloText {
            Layout.fillWidth: true
            Layout.maximumWidth: Math.ceil(implicitWidth)
            Layout.leftMargin: control.isBusy || control.iconName !== "" ? KarvelloDesign.spacing8 : 0
            visible: control.text !== ""
            text: control.text
            textStyle: control.isSmall ? KarvelloDesign.small : KarvelloDesign.body
            emphasis: control.isStrong ? KarvelloText.Strong : KarvelloText.Medium
            color: control.ink
            Accessible.ignored: true
            Rectangle {
                anchors.bottom: parent.bottom
                width: parent.width
                height: 1
                visible: control.isLink && control.hovered
                color: control.ink
            }
        }
        KarvelloIcon {
            Layout.leftMargin: KarvelloDesign.spacing8
            visible: control.isLink
            name: "arrow-right"
            tint: control.ink
            size: 14
        }
        Item { Layout.fillWidth: true }
    }

    background: Rectangle {
        radius: KarvelloDesign.controlRadius
        color: control.enabled ? control.hovered ? control.hoverFill : control.restingFill
            : control.isStrong || control.kind === KarvelloButton.Outline ? KarvelloDesign.elevated3 : "transparent"
        border.width: control.kind === KarvelloButton.Outline ? 1 : 0
        border.color: control.enabled ? KarvelloDesign.lineStrong : KarvelloDesign.elevated3
        Behavior on color { ColorAnimation { duration: KarvelloDesign.shortDuration } }
        FocusRing { isShown: control.visualFocus }
    }

    KarvelloHint {
        target: control
        text: !control.enabled && control.disabledReason !== "" ? control.disabledReason
            : control.text === "" ? control.accessibleName : ""
    }
}
