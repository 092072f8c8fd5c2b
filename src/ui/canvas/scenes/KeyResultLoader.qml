import QtQuick
import Kiv.Canvas
import Kiv.Scene

// The place of a key result; it is made when it comes near to what is seen.
Loader {
    required property ArtScene art
    required property keyResult result
    /// Among all key results of the scene.
    required property int number
    required property real titleWidth

    focus: art.current === number

    sourceComponent: KeyResultRow {
        readonly property KeyResultLoader loader: parent as KeyResultLoader

        art: loader?.art ?? null
        result: loader?.result
        place: loader?.number ?? -1
        titleWidth: loader?.titleWidth ?? 0
    }
}
