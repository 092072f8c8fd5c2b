import QtQuick
import Kiv.Canvas
import Kiv.Scene

// The scene for an art.
Loader {
    id: body

    required property sceneOut scene
    required property int side

    sourceComponent: scene.art === "report" ? report : scene.art === "compare" ? compare : null

    Component {
        id: report

        ReportScene {
            scene: (parent as SceneBody)?.scene
            side: (parent as SceneBody)?.side ?? 0
        }
    }
    Component {
        id: compare

        CompareScene {
            scene: (parent as SceneBody)?.scene
            side: (parent as SceneBody)?.side ?? 0
        }
    }
}
