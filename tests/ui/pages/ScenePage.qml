import QtQuick
import Kiv.Canvas
import Kiv.Scene
import Kiv.Store
import Kiv.Tokens

// A sheet with a scene on the ground of the canvas.
Rectangle {
    id: page

    required property sceneOut scene
    required property sceneSource source
    property bool animated: false

    signal pointChosen(label: string)

    color: Tokens.bg

    Sheet {
        objectName: "sheet"
        anchors.fill: parent
        anchors.margins: 24
        scene: page.scene
        source: page.source
        time: "22 Nov, 09:42"
        linked: true
        animated: page.animated
        onPointChosen: label => page.pointChosen(label)
    }
}
