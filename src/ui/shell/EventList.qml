pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Shell
import Kiv.Store
import Kiv.Tokens

// The events of the current project, or why there are none.
FocusScope {
    id: events

    required property AppStore store
    property real most: 600

    readonly property bool chosen: store.scope.project !== ""

    function toFirst() {
        list.currentIndex = 0
    }

    height: list.count === 0 ? Tokens.fit(34) : list.height

    Label {
        objectName: "eventsEmpty"
        x: 12
        y: 4
        visible: list.count === 0
        color: Tokens.t3
        text: !events.chosen ? qsTr("Pick a project to see its events")
            : events.store.events.eventsLoading ? qsTr("Loading…")
            : qsTr("Nothing yet")
    }
    ListView {
        id: list

        objectName: "eventList"
        width: parent.width
        height: Math.min(contentHeight, events.most)
        // Those of a project that was left wait for its return.
        model: events.chosen ? events.store.events.events : null
        clip: true
        focus: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: Tokens.flickDeceleration
        highlightMoveDuration: 0
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Events")

        T.ScrollBar.vertical: ScrollBar {}

        delegate: EventRow {
            width: list.width
            highlighted: ListView.isCurrentItem && list.activeFocus
        }
    }
}
