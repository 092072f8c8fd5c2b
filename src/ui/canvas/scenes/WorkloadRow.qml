import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// One person: how much of their time is taken. The bar ends at a hundred per cent, the label does not.
SceneRow {
    id: row

    required property wlRow modelData
    required property real nameWidth
    required property real loadWidth

    readonly property DataColor colors: art.dataColor(modelData.color)

    label: modelData.name
    value: Figures.minus(qsTr("%1%").arg(modelData.pct))
    note: modelData.role
    tone: modelData.color === Scene.SceneColor.Red ? qsTr("over 100%")
        : modelData.color === Scene.SceneColor.Amber ? qsTr("90–100%") : qsTr("under 90%")

    PersonDisc {
        anchors.verticalCenter: parent.verticalCenter
        name: row.modelData.name
    }
    NameAndNote {
        x: 48
        width: row.nameWidth - x
        anchors.verticalCenter: parent.verticalCenter
        name: row.modelData.name
        nameStyle: Tokens.type.strong
        note: row.modelData.role
        noteStyle: Tokens.type.caption
    }
    ValueBar {
        x: row.nameWidth + 24
        width: load.x - 24 - x
        height: 14
        anchors.verticalCenter: parent.verticalCenter
        value: Math.max(0, row.modelData.pct) / 100
        fill: row.colors.base
        grown: row.grown
    }
    Label {
        id: load

        x: parent.width - width
        width: row.loadWidth
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignRight
        tabular: true
        style: Tokens.type.subheading
        color: row.colors.text
        elide: Text.ElideNone
        text: row.value
        Accessible.ignored: true
    }
}
