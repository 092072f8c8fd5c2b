import QtQuick
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// The tokens of the plan as a bar on its track, with what is spent and what is left in words.
Item {
    id: bar

    required property accountBudget budget

    /// How much of the plan is spent, in per cent; may be more than all of it.
    readonly property int load: budget.limit > 0 ? Math.round(Math.max(0, budget.spent) / budget.limit * 100) : 0
    readonly property DataColor tone: load > 100 ? Tokens.red : load >= 90 ? Tokens.amber : Tokens.green
    readonly property string spentText: figure(budget.spent)
    readonly property string leftText: figure(budget.left)

    function figure(tokens: real): string {
        return tokens < 0 ? "–" : tokens.toLocaleString(Qt.locale(Qt.uiLanguage), "f", 0)
    }

    implicitHeight: 27 + Tokens.type.small.line + 3
    Accessible.role: Accessible.ProgressBar
    Accessible.name: qsTr("Tokens: %1 spent, %2 left").arg(spentText).arg(leftText)

    ValueBar {
        width: parent.width
        height: 14
        value: bar.budget.limit > 0 ? Math.max(0, bar.budget.spent) / bar.budget.limit : 0
        fill: bar.tone.base
    }
    Label {
        objectName: "spentTokens"
        y: 24
        style: Tokens.type.small
        color: Tokens.t2
        text: qsTr("%1 spent").arg(bar.spentText)
    }
    Label {
        objectName: "leftTokens"
        anchors.right: parent.right
        y: 24
        style: Tokens.type.smallMedium
        color: bar.load >= 90 ? bar.tone.text : Tokens.t1
        text: qsTr("%1 left").arg(bar.leftText)
    }
}
