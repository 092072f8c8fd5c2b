import QtQuick
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// Who a conversation is with: KIV's mark, a project's tile or an agent's disc.
Item {
    id: figure

    required property int kind
    required property string name
    required property string colorHex
    property int size: 24
    property bool thinking: false
    /// KIV is out of reach.
    property bool offline: false

    implicitWidth: size
    implicitHeight: size
    Accessible.ignored: true

    Mark {
        anchors.centerIn: parent
        visible: figure.kind === Store.ScopeKind.Kiv
        size: figure.size
        thinking: figure.thinking
        offline: figure.offline
    }
    Tile {
        anchors.centerIn: parent
        visible: figure.kind === Store.ScopeKind.Project
        size: figure.size
        letter: figure.name
        fill: figure.colorHex === "" ? Tokens.blue.base : figure.colorHex
    }
    Disc {
        anchors.centerIn: parent
        visible: figure.kind === Store.ScopeKind.Agent
        size: figure.size
        letters: figure.name
        most: figure.size < 28 ? 1 : 2
        base: figure.colorHex === "" ? Tokens.blue.base : figure.colorHex
    }
}
