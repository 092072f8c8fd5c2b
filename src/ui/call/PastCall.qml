pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Call
import Kiv.Controls
import Kiv.Icons
import Kiv.Store
import Kiv.Tokens

// A past call: how it went, when, how long and what it was about, with its transcript below it when
// it is open.
T.ItemDelegate {
    id: row

    required property int index
    required property string callId
    required property string status
    required property int durationSecs
    required property date startedAt
    required property string snippet
    required property bool hasTranscript
    required property bool open
    required property bool loading
    required property list<pastLine> lines
    required property AppStore store

    readonly property string start: CallText.start(startedAt, store.calendar)
    readonly property string title: durationSecs === 0 ? CallText.outcome(status)
        : qsTr("%1 · %2").arg(CallText.outcome(status)).arg(CallText.length(durationSecs))
    readonly property int headHeight: Tokens.fit(60)

    signal toggled()

    function toggle() {
        toggled()
        if (hasTranscript)
            store.call.toggleCallTranscript(callId)
    }

    objectName: "pastCall:" + callId
    implicitHeight: headHeight + (transcript.active ? transcript.height : 0)
    focusPolicy: Qt.NoFocus
    text: title
    Accessible.role: Accessible.ListItem
    Accessible.name: title + ", " + start + (snippet === "" ? "" : ", " + snippet)
    Accessible.checkable: hasTranscript
    Accessible.checked: open
    onClicked: toggle()

    background: Item {
        Rectangle {
            width: parent.width
            height: row.headHeight
            radius: Tokens.radiusControl
            color: row.highlighted || row.hovered && row.hasTranscript ? Tokens.hover : "transparent"

            FocusRing {
                anchors.margins: 0
                targetRadius: 4
                visible: row.highlighted
            }
        }
    }

    Rectangle {
        x: 12
        y: (row.headHeight - height) / 2
        width: 32
        height: 32
        radius: 16
        color: Tokens.sunken

        Icon {
            anchors.centerIn: parent
            name: "phone"
            size: 16
            color: Tokens.t2
        }
    }
    Column {
        x: 56
        y: (row.headHeight - height) / 2
        width: stamp.x - x - 12

        Label {
            width: parent.width
            style: Tokens.type.name
            tabular: true
            text: row.title
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            visible: text !== ""
            style: Tokens.type.small
            color: Tokens.t3
            text: row.snippet
            Accessible.ignored: true
        }
    }
    Label {
        id: stamp

        x: arrow.x - width - 12
        y: (row.headHeight - height) / 2
        style: Tokens.type.caption
        tabular: true
        color: Tokens.t3
        text: row.start
        Accessible.ignored: true
    }
    Icon {
        id: arrow

        x: parent.width - width - 16
        y: (row.headHeight - height) / 2
        visible: row.hasTranscript
        name: row.open ? "up" : "down"
        size: 16
        color: Tokens.t3
    }
    PastTranscriptLoader {
        id: transcript

        x: 56
        y: row.headHeight + 8
        width: row.width - x - 16
        active: row.open
        lines: row.lines
        loading: row.loading
        scope: row.store.scope
    }
}
