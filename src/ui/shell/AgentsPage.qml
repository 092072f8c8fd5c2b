pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Shell
import Kiv.Store
import Kiv.Tokens

// Everybody there is to talk to, a card each. The arrow keys go through the cards.
PanelFrame {
    id: page

    required property AppStore store
    property int current: 0

    function go(across: int, down: int) {
        current = lines.moved(current, across, down)
        list.currentIndex = lines.lineOf(current);
        (list.currentItem as AgentLine)?.enter(current)
    }

    function talk(card: agentCard) {
        page.store.scope.pickEntry(card.kind, card.projectId, card.entryId)
        page.store.layout.focusAsk()
    }

    iconName: "agents"
    title: qsTr("Agents")
    detail: store.scope.scopeKind === Store.ScopeKind.Kiv ? store.scope.scopeDetail : ""
    onEntered: go(0, 0)

    AgentLines {
        id: lines

        scope: page.store.scope
        columns: Math.floor((list.width + 4) / 296)
        // The card that had the focus is a new one.
        onArranged: if (list.activeFocus) page.go(0, 0)
    }
    ListView {
        id: list

        objectName: "agentLines"
        anchors.fill: parent
        model: lines
        clip: true
        focus: true
        keyNavigationEnabled: false
        topMargin: 4
        bottomMargin: 24
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: Tokens.flickDeceleration
        highlightMoveDuration: 0
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Agents")
        Keys.onLeftPressed: page.go(-1, 0)
        Keys.onRightPressed: page.go(1, 0)
        Keys.onUpPressed: page.go(0, -1)
        Keys.onDownPressed: page.go(0, 1)

        T.ScrollBar.vertical: ScrollBar {}

        delegate: AgentLine {
            // Room for the ring around a card.
            x: 4
            width: list.width - 12
            columns: lines.columns
            current: page.current
            offline: page.store.connection.offline
            onTalked: card => page.talk(card)
            onCalled: card => {
                page.talk(card)
                page.store.call.callAction()
            }
            onEntered: card => page.current = card
        }
    }
}
