import QtQuick
import Kiv.Tokens

// How a scene comes in: it fades in, and its marks grow one after the other. Without `animated`
// everything is there at once.
QtObject {
    id: entrance

    required property bool animated

    /// Of the whole scene, which is never left half way.
    readonly property real fade: fading.running ? faded : 1
    property real faded: 1
    /// Milliseconds since the scene came.
    property real elapsed: longest

    readonly property int longest: 600
    readonly property int step: 30
    readonly property bool growing: animated && !Tokens.reducedMotion

    readonly property NumberAnimation fading: NumberAnimation {
        target: entrance
        property: "faded"
        running: entrance.animated
        from: 0
        to: 1
        duration: Tokens.quick
    }
    readonly property NumberAnimation growth: NumberAnimation {
        target: entrance
        property: "elapsed"
        running: entrance.growing
        from: 0
        to: entrance.longest
        duration: entrance.longest
    }

    /// From 0 to 1: how much of its length the mark at this place has. The last ones grow together.
    function grown(place: int): real {
        const start = Math.min(place * step, longest - Tokens.draw)
        return growth.running ? 1 - Math.pow(1 - Math.max(0, Math.min(1, (elapsed - start) / Tokens.draw)), 3) : 1
    }
}
