import QtQuick
import Kiv.Call
import Kiv.Store

// What was said in a past call, while its row is open.
Loader {
    required property list<pastLine> lines
    required property bool loading
    required property ScopeRoom scope

    sourceComponent: PastTranscript {
        readonly property PastTranscriptLoader place: parent as PastTranscriptLoader

        lines: place?.lines ?? []
        loading: place?.loading ?? true
        scope: place?.scope ?? null
    }
}
