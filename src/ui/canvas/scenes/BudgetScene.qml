pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// What was planned and what was spent, line by line on one scale.
ArtScene {
    id: budget

    marks: scene.bgRows.length

    BudgetColumns {
        id: columns

        art: budget
    }
    Item {
        id: head

        x: budget.side
        y: budget.headroom
        width: budget.inner
        height: Tokens.fit(32)

        HeadLabel {
            width: columns.name
            text: qsTr("Line")
        }
        Row {
            x: columns.chartX
            anchors.verticalCenter: parent.verticalCenter
            spacing: 16

            BudgetKey { plan: true; text: qsTr("Plan") }
            BudgetKey { plan: false; text: qsTr("Actual") }
        }
        HeadLabel {
            x: columns.planX
            width: columns.plan
            visible: width > 0
            horizontalAlignment: Text.AlignRight
            text: qsTr("Plan")
        }
        HeadLabel {
            x: columns.actualX
            width: columns.actual
            horizontalAlignment: Text.AlignRight
            text: qsTr("Actual")
        }
        HeadLabel {
            x: columns.deltaX
            width: columns.delta
            horizontalAlignment: Text.AlignRight
            text: qsTr("Delta")
        }
        Divider {
            anchors.bottom: parent.bottom
            width: parent.width
            color: Tokens.line2
        }
    }
    RowList {
        id: list

        anchors.top: head.bottom
        anchors.bottom: parent.bottom
        anchors.bottomMargin: budget.footroom
        art: budget
        leastRow: Tokens.fit(48)
        mostRow: 68
        model: SceneModel {
            rows: budget.scene.bgRows
        }
        delegate: BudgetRow {
            art: budget
            height: list.rowHeight
            columns: columns
        }
    }
}
