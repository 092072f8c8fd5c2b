import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// One stream of work: how far it has come, and where its target stands when it has one.
SceneRow {
    id: row

    required property stream modelData
    required property real nameWidth
    required property real figureWidth
    /// Whether any row of the scene has a target.
    required property bool measured
    /// What the whole track stands for, in per cent.
    required property real full
    /// Room for the longest verdict.
    required property real verdictWidth

    /// Beside the figure on a wide sheet, else under it.
    readonly property int goalWidth: measured && !art.narrow ? Tokens.fit(84) : 0
    readonly property real figureEnd: chip.x - (chip.width > 0 ? 16 : 0) - (goalWidth > 0 ? goalWidth + 24 : 0)
    readonly property bool hasTarget: modelData.target >= 0
    readonly property string verdict: !hasTarget ? "" : modelData.good ? qsTr("On track") : qsTr("Behind")
    readonly property string goal: hasTarget ? qsTr("target %1%").arg(modelData.target) : ""

    label: modelData.name
    value: qsTr("%1%").arg(modelData.pct)
    share: goal
    tone: Figures.joined([goal, verdict], ", ")
    // Nothing is said to be good or bad by itself, but what is stuck is.
    note: Figures.joined([hasTarget || modelData.good ? "" : qsTr("Blocked"), modelData.note], " · ")

    NameAndNote {
        width: row.nameWidth
        anchors.verticalCenter: parent.verticalCenter
        name: row.modelData.name
        nameStyle: Tokens.type.rowTitle
        note: row.note
        noteColor: Tokens.t2
    }
    ValueBar {
        id: bar

        x: row.nameWidth + 24
        width: figure.x - (row.art.narrow ? 12 : 24) - x
        height: 12
        anchors.verticalCenter: parent.verticalCenter
        value: row.modelData.pct / row.full
        fill: row.modelData.good ? Tokens.green.base : Tokens.red.base
        grown: row.grown

        TargetTick {
            x: Math.round(Math.min(1, row.modelData.target / row.full) * bar.width - width / 2)
            anchors.verticalCenter: parent.verticalCenter
            visible: row.hasTarget
        }
    }
    Label {
        id: figure

        x: row.figureEnd - width
        y: Math.round((row.height - height - (row.art.narrow && aim.visible ? aim.height : 0)) / 2)
        width: row.figureWidth
        horizontalAlignment: Text.AlignRight
        tabular: true
        style: Tokens.type.heading
        elide: Text.ElideNone
        text: row.value
        Accessible.ignored: true
    }
    Label {
        id: aim

        x: (row.art.narrow ? row.figureEnd : chip.x - 16) - width
        y: row.art.narrow ? figure.y + figure.height : Math.round((row.height - height) / 2)
        width: row.art.narrow ? row.figureWidth + 60 : row.goalWidth
        horizontalAlignment: row.art.narrow ? Text.AlignRight : Text.AlignLeft
        visible: text !== ""
        elide: Text.ElideNone
        tabular: true
        style: Tokens.type.caption
        color: Tokens.t3
        text: row.goal
        Accessible.ignored: true
    }
    Chip {
        id: chip

        x: parent.width - width
        anchors.verticalCenter: parent.verticalCenter
        visible: text !== ""
        width: row.measured ? row.verdictWidth : 0
        tone: row.modelData.good ? Chip.Good : Chip.Bad
        iconName: row.modelData.good ? "check" : "bang"
        text: row.verdict
        Accessible.ignored: true
    }
}
