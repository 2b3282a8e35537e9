pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Karvello.Design

// Two to four choices, one of them chosen. One stop for Tab; the arrows choose.
Rectangle {
    id: control

    property list<string> choices
    property int currentIndex: 0
    property string accessibleName

    // The user chose; whoever owns the choice sets `currentIndex`.
    signal activated(int index)

    function choose(index: int, reason: int) {
        const wanted = Math.max(0, Math.min(index, choices.length - 1))
        if (wanted === currentIndex)
            return
        activated(wanted)
        const button = segments.itemAt(currentIndex) as Item
        if (button)
            button.forceActiveFocus(reason)
    }

    implicitWidth: row.implicitWidth + 4
    implicitHeight: Math.round(34 * KarvelloDesign.textFactor)
    radius: KarvelloDesign.controlRadius + 1
    color: KarvelloDesign.elevated3

    Accessible.role: Accessible.Grouping
    Accessible.name: accessibleName

    Row {
        id: row
        anchors.fill: parent
        anchors.margins: 2

        Repeater {
            id: segments
            model: control.choices

            T.RadioButton {
                id: segment

                required property int index
                required property string modelData
                readonly property bool isChosen: index === control.currentIndex

                checkable: false
                height: row.height
                implicitWidth: implicitContentWidth + 2 * KarvelloDesign.spacing12
                text: modelData
                hoverEnabled: true
                // What has the focus has to keep it until the chosen one takes it.
                focusPolicy: isChosen || activeFocus ? Qt.StrongFocus : Qt.NoFocus
                onClicked: control.choose(index, Qt.MouseFocusReason)

                Accessible.name: text
                // The state is the owner's.
                KarvelloSpoken.role: Accessible.RadioButton
                KarvelloSpoken.checkable: true
                KarvelloSpoken.checked: isChosen
                Accessible.onPressAction: chooseByAssistant()
                Accessible.onToggleAction: chooseByAssistant()

                function chooseByAssistant() {
                    if (segment.enabled)
                        control.choose(segment.index, Qt.OtherFocusReason)
                }

                Keys.onPressed: event => {
                    const moves = {
                        [Qt.Key_Left]: index - 1,
                        [Qt.Key_Up]: index - 1,
                        [Qt.Key_Right]: index + 1,
                        [Qt.Key_Down]: index + 1,
                        [Qt.Key_Home]: 0,
                        [Qt.Key_End]: control.choices.length - 1
                    }
                    event.accepted = event.key in moves
                    if (event.accepted)
                        control.choose(moves[event.key], Qt.TabFocusReason)
                }

                background: Rectangle {
                    radius: KarvelloDesign.controlRadius - 1
                    color: !segment.isChosen ? segment.hovered ? KarvelloDesign.lineSoft : "transparent"
                        : segment.enabled ? KarvelloDesign.elevated1 : KarvelloDesign.elevated2
                    border.width: segment.isChosen ? 1 : 0
                    border.color: KarvelloDesign.isDark ? KarvelloDesign.lineStrong : KarvelloDesign.line
                    FocusRing { isShown: segment.visualFocus }
                }
                contentItem: KarvelloText {
                    text: segment.text
                    textStyle: KarvelloDesign.small
                    emphasis: KarvelloText.Medium
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    color: !segment.enabled ? KarvelloDesign.ink4
                        : segment.isChosen ? KarvelloDesign.ink : KarvelloDesign.ink3
                    Accessible.ignored: true
                }
            }
        }
    }
}
