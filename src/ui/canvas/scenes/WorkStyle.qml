import QtQuick
import Kiv.Scene
import Kiv.Tokens

// How work of a status looks and what it is called.
QtObject {
    required property int status

    readonly property DataColor colors: status === Scene.WorkStatus.Done ? Tokens.green
        : status === Scene.WorkStatus.Doing ? Tokens.blue
        : status === Scene.WorkStatus.Blocked ? Tokens.red
        : null
    readonly property bool todo: status === Scene.WorkStatus.Todo

    readonly property string word: status === Scene.WorkStatus.Done ? qsTr("Done")
        : status === Scene.WorkStatus.Doing ? qsTr("Doing")
        : status === Scene.WorkStatus.Blocked ? qsTr("Blocked")
        : todo ? qsTr("To do")
        : qsTr("Unknown")
    readonly property string sign: status === Scene.WorkStatus.Done ? "check"
        : status === Scene.WorkStatus.Doing ? "refresh"
        : status === Scene.WorkStatus.Blocked ? "bang"
        : ""
    readonly property color fill: colors?.tint ?? (todo ? Tokens.surface : Tokens.sunken)
    readonly property color edge: colors?.line ?? (todo ? Tokens.line2 : Tokens.sunken)
    readonly property color ink: colors?.text ?? Tokens.t2
    /// In a legend, where a tint would be too pale.
    readonly property color mark: colors?.base ?? (todo ? "transparent" : Tokens.line2)
    readonly property color markEdge: todo ? Tokens.control : mark
}
