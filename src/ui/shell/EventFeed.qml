pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Shell
import Kiv.Store
import Kiv.Tokens

// What has happened in the current project.
Popover {
    id: popover

    required property AppStore store
    property real most: 600

    readonly property bool chosen: store.scope.project !== ""

    width: 360
    onAboutToShow: {
        list.currentIndex = 0
        list.forceActiveFocus(Qt.PopupFocusReason)
    }

    contentItem: Item {
        implicitHeight: 42 + (list.count === 0 ? 34 : list.height)
    }

    Row {
        x: 12
        y: 10
        spacing: 8

        Label {
            style: Tokens.type.strong
            text: qsTr("Events")
            Accessible.role: Accessible.Heading
        }
        Label {
            width: Math.min(implicitWidth, 240)
            style: Tokens.type.line
            color: Tokens.t3
            text: popover.chosen ? popover.store.scope.projectName : ""
        }
    }
    Label {
        objectName: "eventsEmpty"
        x: 12
        y: 46
        visible: list.count === 0
        color: Tokens.t3
        text: !popover.chosen ? qsTr("Pick a project to see its events")
            : popover.store.events.eventsLoading ? qsTr("Loading…")
            : qsTr("Nothing yet")
    }
    ListView {
        id: list

        objectName: "eventList"
        y: 42
        width: popover.availableWidth
        height: Math.min(contentHeight, popover.most - 60)
        model: popover.store.events.events
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
