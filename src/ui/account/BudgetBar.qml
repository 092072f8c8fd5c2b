import QtQuick
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// The tokens of the plan as a bar on its track, with what is spent and what is left in words.
Item {
    id: bar

    required property accountBudget budget

    readonly property real share: budget.limit > 0 ? Math.max(0, Math.min(1, budget.spent / budget.limit)) : 0
    readonly property DataColor tone: share >= 1 ? Tokens.red : share >= 0.85 ? Tokens.amber : Tokens.blue
    readonly property string spentText: figure(budget.spent)
    readonly property string leftText: figure(budget.left)

    function figure(tokens: real): string {
        return tokens < 0 ? "–" : tokens.toLocaleString(Qt.locale(Qt.uiLanguage), "f", 0)
    }

    implicitHeight: 33 + Tokens.type.small.line + 3
    Accessible.role: Accessible.ProgressBar
    Accessible.name: qsTr("Tokens: %1 spent, %2 left").arg(spentText).arg(leftText)

    Rectangle {
        width: parent.width
        height: 20
        radius: Tokens.radiusSmall
        color: Tokens.sunken

        Rectangle {
            width: bar.budget.spent > 0 ? Math.max(3, bar.share * parent.width) : 0
            height: parent.height
            radius: Math.min(Tokens.radiusSmall, width / 2)
            color: bar.tone.base
        }
    }
    Label {
        objectName: "spentTokens"
        y: 30
        style: Tokens.type.small
        color: Tokens.t2
        text: qsTr("%1 spent").arg(bar.spentText)
    }
    Label {
        objectName: "leftTokens"
        anchors.right: parent.right
        y: 30
        style: Tokens.type.smallMedium
        color: bar.share >= 0.85 ? bar.tone.text : Tokens.t1
        text: qsTr("%1 left").arg(bar.leftText)
    }
}
