import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// A criterion: its name, and the scores that the two options get for it.
SceneRow {
    id: row

    required property critRow modelData
    /// The score of a full bar.
    required property int most
    required property real figureWidth
    required property int middle

    readonly property real half: (width - middle) / 2
    /// Where the name stands above the bars, these stand in the lower half.
    readonly property real barY: art.narrow ? Math.round(height / 2) + 10 : height / 2

    label: modelData.name
    value: qsTr("A %1 · B %2").arg(modelData.a).arg(modelData.b)

    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        y: row.art.narrow ? row.barY - 38 : Math.round((row.height - height) / 2)
        width: row.art.narrow ? row.width : row.middle - 24
        horizontalAlignment: Text.AlignHCenter
        style: Tokens.type.smallMedium
        wrapMode: Text.Wrap
        maximumLineCount: row.art.narrow ? 1 : 2
        text: row.modelData.name
        Accessible.ignored: true
    }
    Score {
        y: row.barY - height / 2
        width: row.half
        score: row.modelData.a
        other: row.modelData.b
        most: row.most
        figureWidth: row.figureWidth
        fill: Tokens.violet.base
        grown: row.grown
        mirrored: true
    }
    Score {
        x: row.width - width
        y: row.barY - height / 2
        width: row.half
        score: row.modelData.b
        other: row.modelData.a
        most: row.most
        figureWidth: row.figureWidth
        fill: Tokens.blue.base
        grown: row.grown
    }
}
