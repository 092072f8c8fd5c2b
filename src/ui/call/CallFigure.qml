import QtQuick
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// Who the call is with, in rings that answer to the voice. Everything follows the outer ring's size.
Item {
    id: figure

    required property int kind
    required property string name
    required property string colorHex
    /// The outer ring.
    property real size: 440
    /// How loud somebody speaks now, 0 to 1.
    property real level: 0
    property bool speaking: false
    property bool connecting: false

    readonly property real unit: size / 440
    readonly property real reach: Tokens.reducedMotion ? 1 : 1 + 0.06 * level
    readonly property color base: colorHex === "" ? Tokens.blue.base : colorHex

    Accessible.ignored: true

    Rectangle {
        objectName: "callRing"
        anchors.centerIn: parent
        width: figure.size * figure.reach
        height: width
        radius: width / 2
        color: "transparent"
        border.width: 1
        border.color: Tokens.line
    }
    Rectangle {
        anchors.centerIn: parent
        width: 352 * figure.unit * figure.reach
        height: width
        radius: width / 2
        color: "transparent"
        border.width: 1.5
        border.color: Tokens.accentLine
        opacity: 0.7
    }
    Rectangle {
        anchors.centerIn: parent
        width: 272 * figure.unit
        height: width
        radius: width / 2
        color: Tokens.accentTint
    }
    Mark {
        anchors.centerIn: parent
        visible: figure.kind === Store.ScopeKind.Kiv
        size: Math.round(200 * figure.unit)
        stroke: 12 * figure.unit
        core: 0.38
        satellite: 0.22
        ground: Tokens.bg
        thinking: figure.connecting
        coreScale: figure.speaking && !Tokens.reducedMotion ? 0.8 + 0.35 * figure.level : 1
    }
    Tile {
        anchors.centerIn: parent
        visible: figure.kind === Store.ScopeKind.Project
        size: Math.round(180 * figure.unit)
        letter: figure.name
        fill: figure.base
    }
    Disc {
        anchors.centerIn: parent
        visible: figure.kind === Store.ScopeKind.Agent
        size: Math.round(200 * figure.unit)
        letters: figure.name
        base: figure.base
    }
}
