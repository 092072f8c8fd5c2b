pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// The replies offered under an answer: one stop of the tab key, Left and Right go through them. What
// does not fit into two lines is left out.
FocusScope {
    id: replies

    required property list<replyChip> chips
    /// How many are offered.
    property int most: chips.length

    readonly property int lineHeight: Tokens.fit(32)
    readonly property int gap: 8
    readonly property int lines: 2

    property int current: 0

    signal picked(chip: replyChip)

    function go(step: int) {
        const next = repeater.itemAt(current + step) as ReplyChip
        if (!next || !next.enabled)
            return
        current += step
        next.forceActiveFocus(Qt.TabFocusReason)
    }

    implicitHeight: flow.y + Math.min(flow.implicitHeight, lines * lineHeight + (lines - 1) * gap)
    visible: chips.length > 0
    onChipsChanged: current = 0
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Replies")
    Keys.onLeftPressed: go(-1)
    Keys.onRightPressed: go(1)

    Flow {
        id: flow

        y: 4
        width: replies.width
        spacing: replies.gap

        Repeater {
            id: repeater

            model: replies.chips

            ReplyChip {
                required property replyChip modelData
                required property int index

                objectName: "replyChip:" + index
                visible: index < replies.most
                enabled: visible && y < replies.lines * (replies.lineHeight + replies.gap)
                opacity: enabled ? 1 : 0
                focus: index === replies.current
                focusPolicy: index === replies.current ? Qt.StrongFocus : Qt.ClickFocus
                maximumWidth: Math.min(420, replies.width)
                text: modelData.label
                onClicked: replies.picked(modelData)
            }
        }
    }
}
