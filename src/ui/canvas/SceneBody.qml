import QtQuick
import Kiv.Scene

// The place of a scene on its sheet. The scene of an art stands in the file that has the art's name.
Loader {
    required property sceneOut scene
    /// Padding at the sides.
    required property int side
    /// Whether the scene comes in with its entrance.
    required property bool animated
    /// Whether its marks ask about what they stand for.
    required property bool asks
    /// Whether a picture is taken of it.
    required property bool pictured

    signal pointChosen(label: string)

    source: scene.art === "" ? "" : "scenes/" + scene.art.charAt(0).toUpperCase() + scene.art.slice(1) + "Scene.qml"
}
