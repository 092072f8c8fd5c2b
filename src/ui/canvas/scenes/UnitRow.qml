import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// A part of the whole: its name, its figure and its share.
SceneRow {
    id: row

    required property ueRow modelData
    required property real valueWidth

    label: modelData.name
    value: modelData.value
    share: Figures.share(modelData.w, 100)
    Accessible.name: Figures.joined([label, value, share === value ? "" : share], ", ")

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: 10
        height: 10
        radius: 3
        color: row.art.dataColor(row.modelData.color).base
    }
    Label {
        x: 22
        y: Math.round((row.height - height) / 2)
        width: figure.x - x - 16
        style: Tokens.type.name
        text: row.modelData.name === "" ? "—" : row.modelData.name
        Accessible.ignored: true
    }
    Label {
        id: figure

        x: row.width - width - 64
        y: Math.round((row.height - height) / 2)
        width: row.valueWidth
        horizontalAlignment: Text.AlignRight
        elide: Text.ElideNone
        tabular: true
        style: Tokens.type.line
        color: Tokens.t2
        text: row.modelData.value
        Accessible.ignored: true
    }
    Label {
        x: row.width - width
        y: Math.round((row.height - height) / 2)
        elide: Text.ElideNone
        tabular: true
        style: Tokens.type.strong
        // A part that is given as its share.
        visible: row.share !== row.value
        text: row.share
        Accessible.ignored: true
    }
}
