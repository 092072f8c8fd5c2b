pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Call
import Kiv.Chat
import Kiv.Controls
import Kiv.Store

// One line of a running call: something said, something that happened, or something drawn.
Item {
    id: line

    required property int index
    required property int kind
    required property bool owner
    required property string text
    required property string state
    required property string action
    required property string art
    required property int at
    required property AppStore store
    readonly property CallRoom call: store.call
    /// The keys have come to what can be pressed in it.
    readonly property bool byKey: (drawing.made as CanvasCard)?.visualFocus ?? false

    implicitHeight: speech.visible ? speech.implicitHeight : event.visible ? event.implicitHeight : drawing.implicitHeight

    SpokenLine {
        id: speech

        objectName: "spokenLine"
        width: parent.width
        visible: line.kind === Store.CallLineKind.Speech
        mine: line.owner
        counterpart: line.call.callName
        counterpartKind: line.call.callKind
        counterpartColorHex: line.call.callColorHex
        words: line.text
        seconds: line.at
        growing: line.state === "partial"
        person: line.store.scope
    }
    SpokenEvent {
        id: event

        width: parent.width
        visible: !speech.visible && !drawing.visible
        words: line.text
        seconds: line.at
    }
    LatePlace {
        id: drawing

        x: 40
        width: parent.width - x
        wanted: line.art !== ""
        content: CanvasCard {
            objectName: "drawnInCall"
            width: drawing.width
            title: line.text
            art: line.art
            // Looked up anew whenever the canvas changes.
            shown: line.store.canvas.sourceMessageId !== "" && line.store.canvas.sourceMessageId === line.call.messageOf(line.action)
            onClicked: line.call.showDrawing(line.action)
        }
    }
}
