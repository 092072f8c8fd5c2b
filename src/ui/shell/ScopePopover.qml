pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Shell
import Kiv.Store
import Kiv.Tokens

// Everything that the person can talk to, found by typing.
Popover {
    id: popover

    required property AppStore store
    readonly property PopupPlace place: parent as PopupPlace
    readonly property real most: place?.most ?? 600
    /// What the search begins with.
    property string typed: ""

    readonly property ScopeRoom scope: store.scope

    function pickCurrent() {
        const row = list.currentItem as ScopeRow
        if (row)
            row.clicked()
    }

    alignLeft: true
    width: Tokens.fit(340)
    visible: place?.shown ?? false
    onAboutToHide: store.layout.closePopovers()
    onAboutToShow: {
        search.text = typed
        typed = ""
        scope.choices.query = search.text
        list.currentIndex = 0
        search.forceActiveFocus(Qt.PopupFocusReason)
    }

    contentItem: Item {
        implicitHeight: create.y + create.height
    }

    TextField {
        id: search

        objectName: "scopeSearch"
        x: 2
        y: 2
        width: popover.availableWidth - 4
        height: Tokens.fit(36)
        iconName: "search"
        placeholderText: qsTr("Find a project or agent")
        Accessible.name: placeholderText
        onTextChanged: {
            popover.scope.choices.query = text
            list.currentIndex = 0
        }
        onAccepted: popover.pickCurrent()
        Keys.onDownPressed: list.currentIndex = popover.scope.choices.stepped(list.currentIndex, 1)
        Keys.onUpPressed: list.currentIndex = popover.scope.choices.stepped(list.currentIndex, -1)
    }
    ListView {
        id: list

        objectName: "scopeChoices"
        y: Tokens.fit(36) + 8
        width: popover.availableWidth
        height: Math.min(contentHeight, popover.most - Tokens.fit(178))
        model: popover.scope.choices
        clip: true
        currentIndex: 0
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: Tokens.flickDeceleration
        highlightMoveDuration: 0
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Projects and agents")

        T.ScrollBar.vertical: ScrollBar {}

        delegate: ScopeRow {
            required property string entryId
            required property string projectId

            width: list.width
            highlighted: ListView.isCurrentItem
            offline: popover.store.connection.offline
            onClicked: popover.scope.pickEntry(kind, projectId, entryId)
        }
    }
    Label {
        x: 12
        y: Tokens.fit(36) + 16
        visible: list.count === 0
        color: Tokens.t3
        text: qsTr("Nobody is called that")
    }
    Divider {
        x: -popover.leftPadding + 1
        y: everybody.y - 7
        width: popover.width - 2
    }
    MenuRow {
        id: everybody

        objectName: "showAgents"
        y: Tokens.fit(36) + 8 + Math.max(list.height, list.count === 0 ? 36 : 0) + 13
        width: popover.availableWidth
        iconName: "agents"
        text: qsTr("Show all agents")
        onClicked: popover.store.canvas.openPanel("agents")
    }
    MenuRow {
        id: calls

        objectName: "showCalls"
        y: everybody.y + everybody.height
        width: popover.availableWidth
        iconName: "phone"
        text: qsTr("Show past calls")
        onClicked: popover.store.canvas.openPanel("calls")
    }
    MenuRow {
        id: create

        objectName: "scopeCreate"
        y: calls.y + calls.height
        width: popover.availableWidth
        iconName: "plus"
        text: qsTr("New project or agent")
        onClicked: popover.store.layout.startCreate()
    }
}
