pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Shell
import Kiv.Store
import Kiv.Tokens

// Everything that there is to talk to: one stop of the tab key, rows by the arrow keys.
ListView {
    id: list

    required property ScopeRoom scope
    property bool offline: false
    /// The project that was entered last.
    property string entered: ""

    /// Somebody is looked for, perhaps with what is typed already.
    signal searchRequested(typed: string)
    /// A new "project" or "agent" is asked for.
    signal createRequested(kind: string)

    /// Whether a key gives a letter that a name can begin with.
    function isTyped(event: KeyEvent): bool {
        return event.text > " " && event.key !== Qt.Key_Delete && event.key !== Qt.Key_Backspace
            && (event.modifiers & ~Qt.ShiftModifier) === 0
    }

    /// Opens the project that the keys are at, or closes it.
    function expand(open: bool) {
        const row = currentItem as NavigatorRow
        if (row && row.expanded !== open)
            row.toggled()
    }

    /// The keys go on from what is selected, wherever it was chosen; a project that is entered has come
    /// before the others.
    function follow() {
        if (scope.project !== entered && scope.project !== "") {
            positionViewAtBeginning()
            contentY = originY - topMargin
        }
        entered = scope.project
        const row = scope.rail.selectedRow()
        if (row >= 0)
            currentIndex = row
    }

    objectName: "navigator"
    model: scope.rail
    topMargin: 12
    bottomMargin: 8
    leftMargin: 12
    spacing: 2
    clip: true
    reuseItems: true
    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    flickDeceleration: Tokens.flickDeceleration
    highlightMoveDuration: 0
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Projects and agents")
    Component.onCompleted: follow()
    Keys.onUpPressed: currentIndex = scope.rail.stepped(currentIndex, -1)
    Keys.onDownPressed: currentIndex = scope.rail.stepped(currentIndex, 1)
    Keys.onPressed: event => {
        event.accepted = list.isTyped(event)
        if (event.accepted)
            list.searchRequested(event.text)
    }
    Keys.onReturnPressed: (currentItem as NavigatorRow)?.clicked()
    Keys.onEnterPressed: (currentItem as NavigatorRow)?.clicked()
    Keys.onSpacePressed: (currentItem as NavigatorRow)?.clicked()
    Keys.onRightPressed: expand(true)
    Keys.onLeftPressed: expand(false)

    T.ScrollBar.vertical: ScrollBar {}

    Connections {
        target: list.scope

        function onProjectChanged() {
            following.restart()
        }
        function onAgentChanged() {
            following.restart()
        }
    }
    Timer {
        id: following

        // The rows follow once the scope has changed.
        interval: 0
        onTriggered: list.follow()
    }

    delegate: NavigatorRow {
        required property int index

        width: list.width - 24
        offline: list.offline
        ringed: ListView.isCurrentItem && list.activeFocus
        onClicked: {
            if (label)
                return
            list.scope.pickEntry(kind, projectId, entryId)
            list.follow()
        }
        onSearchRequested: list.searchRequested("")
        onCreateRequested: list.createRequested(entryId)
        onToggled: if (project) list.scope.toggleExpanded(entryId)
    }
}
