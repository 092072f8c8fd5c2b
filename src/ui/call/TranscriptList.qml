pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Call
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// The lines of a call, newest at the end, which the view follows while the person is near it.
Flickable {
    id: view

    required property AppStore store
    readonly property alias count: lines.count
    property bool following: true

    readonly property real end: contentHeight - height

    function step(by: real) {
        contentY = Math.max(0, Math.min(end, contentY + by))
        following = end - contentY <= Tokens.followDistance
    }

    // Brings what the keys have come to into sight.
    function reveal(top: real, extent: real) {
        contentY = Math.max(Math.min(contentY, top - 12), top + extent + 12 - height)
        following = end - contentY <= Tokens.followDistance
    }

    objectName: "transcriptList"
    contentWidth: width
    // Few lines sit at the lower edge.
    contentHeight: Math.max(height, column.height + 32)
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    flickDeceleration: Tokens.flickDeceleration
    activeFocusOnTab: true
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Transcript")
    onContentYChanged: if (moving || bar.pressed) following = end - contentY <= Tokens.followDistance
    onEndChanged: if (following) contentY = end
    Keys.onUpPressed: step(-Tokens.followDistance)
    Keys.onDownPressed: step(Tokens.followDistance)
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_PageUp || event.key === Qt.Key_PageDown
        if (event.accepted)
            view.step(event.key === Qt.Key_PageUp ? -view.height : view.height)
    }

    T.ScrollBar.vertical: ScrollBar {
        id: bar
    }

    FocusRing {
        parent: view
        anchors.margins: 2
        visible: view.activeFocus
        targetRadius: 0
    }
    Column {
        id: column

        x: 24
        y: view.contentHeight - height - 12
        width: view.width - 48
        spacing: 20

        Repeater {
            id: lines

            model: view.store.call.callTranscript
            delegate: TranscriptLine {
                objectName: "transcriptLine:" + index
                width: column.width
                store: view.store
                onByKeyChanged: if (byKey) view.reveal(column.y + y, height)
            }
        }
    }
}
