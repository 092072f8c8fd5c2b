import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// One cost: its name, a bar against the largest amount, the amount.
SceneRow {
    id: row

    required property coRow modelData
    required property real nameWidth
    required property real amountWidth
    /// How much of the track a hundred per cent are, and where zero stands on it.
    required property real full
    required property real zero
    /// What all rows sum up to, in per cent of the largest; 0 where a sum means nothing.
    required property real whole

    readonly property color fill: art.dataColor(modelData.color).base

    label: modelData.name
    value: modelData.amount
    note: modelData.sub
    share: Figures.share(modelData.pct, whole)

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: 10
        height: 10
        radius: 3
        color: row.fill
    }
    NameAndNote {
        x: 22
        width: row.nameWidth - x
        anchors.verticalCenter: parent.verticalCenter
        stacked: row.art.narrow
        name: row.modelData.name
        note: row.modelData.sub
    }
    ValueBar {
        x: row.nameWidth + 16
        width: amount.x - 16 - x
        anchors.verticalCenter: parent.verticalCenter
        value: row.modelData.pct / 100 * row.full
        zero: row.zero
        fill: row.fill
        grown: row.grown
    }
    Label {
        id: amount

        x: parent.width - width
        width: row.amountWidth
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignRight
        tabular: true
        style: Tokens.type.strong
        wrapMode: Text.Wrap
        maximumLineCount: 2
        text: row.modelData.amount === "" ? "—" : row.modelData.amount
        Accessible.ignored: true
    }
}
