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

    required property ScopeRoom scope
    property real most: 600

    /// Something new to talk to is asked for.
    signal createRequested()

    function pickCurrent() {
        const row = list.currentItem as ScopeRow
        if (row)
            row.clicked()
    }

    alignLeft: true
    width: 340
    onAboutToShow: {
        search.clear()
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
        height: 36
        iconName: "search"
        placeholderText: qsTr("Find a project or agent")
        Accessible.name: placeholderText
        onTextChanged: {
            popover.scope.choices.query = text
            list.currentIndex = 0
        }
        onAccepted: popover.pickCurrent()
        Keys.onDownPressed: list.incrementCurrentIndex()
        Keys.onUpPressed: list.decrementCurrentIndex()
    }
    ListView {
        id: list

        objectName: "scopeChoices"
        y: 44
        width: popover.availableWidth
        height: Math.min(contentHeight, popover.most - 110)
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
            onClicked: popover.scope.pickEntry(kind, projectId, entryId)
        }
    }
    Divider {
        x: -popover.leftPadding + 1
        y: create.y - 7
        width: popover.width - 2
    }
    MenuRow {
        id: create

        objectName: "scopeCreate"
        y: list.y + list.height + 13
        width: popover.availableWidth
        iconName: "plus"
        text: qsTr("New project or agent")
        onClicked: popover.createRequested()
    }
}
