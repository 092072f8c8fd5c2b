pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Shell
import Kiv.Store
import Kiv.Tokens

// A line of the page of agents: the heading of a project, or cards side by side.
Item {
    id: line

    required property string heading
    required property string detail
    required property string colorHex
    required property list<agentCard> cards
    required property int first
    property int columns: 1
    property bool offline: false
    /// The card that the tab key reaches.
    property int current: 0

    readonly property real cardWidth: (width - (columns - 1) * 16) / columns

    signal talked(card: agentCard)
    signal called(card: agentCard)
    signal entered(card: int)

    /// Gives the focus to one of the cards.
    function enter(card: int) {
        (tiles.itemAt(card - first) as AgentTile)?.forceActiveFocus(Qt.TabFocusReason)
    }

    implicitHeight: heading === "" ? Tokens.fit(112) + 16 : Tokens.fit(52)

    Figure {
        id: figure

        x: 2
        y: 16
        visible: line.colorHex !== ""
        kind: Store.ScopeKind.Project
        name: line.heading
        colorHex: line.colorHex
        size: 24
    }
    Label {
        id: title

        x: figure.visible ? 36 : 2
        y: 18
        visible: line.heading !== ""
        width: Math.min(implicitWidth, line.width - x)
        style: Tokens.type.strong
        text: line.heading
        Accessible.role: Accessible.Heading
    }
    Label {
        anchors.left: title.right
        anchors.leftMargin: 10
        anchors.baseline: title.baseline
        visible: line.heading !== "" && width > 24
        width: Math.max(0, line.width - x)
        style: Tokens.type.caption
        color: Tokens.t3
        text: line.detail
    }
    Row {
        spacing: 16

        Repeater {
            id: tiles

            model: line.cards

            AgentTile {
                required property agentCard modelData
                required property int index

                objectName: "agentCard:" + modelData.entryId
                width: line.cardWidth
                kind: modelData.kind
                name: modelData.name
                detail: modelData.detail
                colorHex: modelData.colorHex
                offline: line.offline
                activeFocusOnTab: line.first + index === line.current || activeFocus
                onClicked: line.talked(modelData)
                onCalled: line.called(modelData)
                onActiveFocusChanged: if (activeFocus) line.entered(line.first + index)
            }
        }
    }
}
