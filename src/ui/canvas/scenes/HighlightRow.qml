import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// A line that the answer gives weight to.
SceneRow {
    id: row

    required property string modelData
    required property real least

    height: Math.max(least, words.height + 12)
    label: modelData
    tip: words.truncated ? modelData : ""

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: 6
        height: 6
        radius: 3
        color: Tokens.t3
    }
    Label {
        id: words

        x: 18
        width: parent.width - x
        anchors.verticalCenter: parent.verticalCenter
        wrapMode: Text.Wrap
        maximumLineCount: 2
        text: row.modelData
        Accessible.ignored: true
    }
}
