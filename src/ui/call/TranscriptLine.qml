import QtQuick
import Kiv.Call
import Kiv.Store

// One line of a running call: something said, or something that happened.
Item {
    id: line

    required property int index
    required property int kind
    required property bool owner
    required property string text
    required property string state
    required property int at
    required property CallRoom call
    required property ScopeRoom scope

    implicitHeight: speech.visible ? speech.implicitHeight : event.implicitHeight

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
        person: line.scope
    }
    SpokenEvent {
        id: event

        width: parent.width
        visible: !speech.visible
        words: line.text
        seconds: line.at
    }
}
