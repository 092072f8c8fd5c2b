import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// A note.
MarkArea {
    id: card

    required property briefItem modelData
    required property int index
    required property color ground

    height: Math.max(68, words.height + 28)
    ringRadius: Tokens.radiusBlock
    label: modelData.text

    Rectangle {
        anchors.fill: parent
        radius: Tokens.radiusBlock
        color: card.ground
    }
    Label {
        id: words

        x: 16
        y: 14
        width: parent.width - 32
        wrapMode: Text.Wrap
        maximumLineCount: 6
        text: card.modelData.text
        Accessible.ignored: true
    }
}
