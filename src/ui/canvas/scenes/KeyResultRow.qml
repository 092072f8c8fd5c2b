import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// One key result: its name, and how much of it is reached.
MarkArea {
    id: row

    required property keyResult result
    required property real titleWidth

    label: result.title
    value: qsTr("%1%").arg(result.pct)
    ringX: -6
    ringY: 1

    Label {
        id: title

        width: row.titleWidth
        anchors.verticalCenter: parent.verticalCenter
        style: Tokens.type.small
        color: Tokens.t2
        wrapMode: Text.Wrap
        maximumLineCount: 2
        text: row.result.title
        Accessible.ignored: true
    }
    ValueBar {
        x: title.width + 20
        width: figure.x - 12 - x
        anchors.verticalCenter: parent.verticalCenter
        value: row.result.pct / 100
        fill: row.art.dataColor(row.result.color).base
        grown: row.art.entrance.grown(row.place)
    }
    Label {
        id: figure

        x: parent.width - width
        width: Math.max(44, implicitWidth)
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignRight
        tabular: true
        style: Tokens.type.strong
        elide: Text.ElideNone
        text: row.value
        Accessible.ignored: true
    }
}
