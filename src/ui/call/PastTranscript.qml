pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Call
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// What was said in a past call.
Column {
    id: transcript

    required property list<pastLine> lines
    required property bool loading
    /// Who the call was with, and who the person is.
    required property ScopeRoom scope
    // A project has no voice of its own: KIV speaks for it.
    readonly property bool withAgent: scope.scopeKind === Store.ScopeKind.Agent

    spacing: 16
    bottomPadding: 20

    Label {
        objectName: "pastTranscriptNote"
        visible: transcript.lines.length === 0
        style: Tokens.type.small
        color: Tokens.t3
        text: transcript.loading ? qsTr("Loading…") : qsTr("Nothing was written down")
    }
    Repeater {
        model: transcript.lines

        SpokenLine {
            required property int index
            required property pastLine modelData

            objectName: "pastLine:" + index
            width: Math.min(720, transcript.width)
            mine: modelData.owner
            counterpart: transcript.withAgent ? transcript.scope.scopeName : "KIV"
            counterpartKind: transcript.withAgent ? Store.ScopeKind.Agent : Store.ScopeKind.Kiv
            counterpartColorHex: transcript.scope.scopeColorHex
            words: modelData.text
            seconds: modelData.seconds
            person: transcript.scope
        }
    }
}
