pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Call
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// The calls with the current counterpart, newest first, or why there are none.
FocusScope {
    id: calls

    required property AppStore store
    readonly property CallRoom room: store.call
    readonly property bool failed: room.callHistoryFailed

    onFailedChanged: (failed ? retry : list).focus = true

    Label {
        objectName: "callsEmpty"
        x: 16
        y: 8
        visible: list.count === 0 && !calls.failed
        color: Tokens.t3
        text: calls.room.callHistoryLoaded ? qsTr("No calls yet") : qsTr("Loading…")
    }
    Column {
        x: 16
        y: 8
        spacing: 12
        visible: calls.failed

        Label {
            text: qsTr("The calls could not be loaded")
            Accessible.role: Accessible.AlertMessage
        }
        Button {
            id: retry

            objectName: "callsRetry"
            size: Button.Small
            text: qsTr("Try again")
            onClicked: calls.room.loadCallHistory()
        }
    }
    ListView {
        id: list

        objectName: "callList"
        anchors.fill: parent
        visible: !calls.failed
        model: calls.room.callHistory
        clip: true
        focus: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: Tokens.flickDeceleration
        highlightMoveDuration: 0
        bottomMargin: 8
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Calls")
        Keys.onReturnPressed: (currentItem as PastCall)?.toggle()
        Keys.onEnterPressed: (currentItem as PastCall)?.toggle()
        Keys.onSpacePressed: (currentItem as PastCall)?.toggle()

        T.ScrollBar.vertical: ScrollBar {}

        delegate: PastCall {
            width: list.width
            store: calls.store
            highlighted: ListView.isCurrentItem && list.activeFocus
            onToggled: {
                list.currentIndex = index
                list.forceActiveFocus(Qt.MouseFocusReason)
            }
        }
    }
}
