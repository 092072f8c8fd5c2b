pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// A lane for each agent with its work in the order of the answer. Positions are order, not time.
ArtScene {
    id: agents

    readonly property int nameWidth: Tokens.fit(wide ? 196 : narrow ? 116 : 168)

    marks: groups.count

    LaneLayout {
        id: layout

        scene: agents.scene
        width: agents.inner - agents.nameWidth
        height: lanes.height
        font: measured.font
        blockHeight: Tokens.fit(40)
    }
    MarkGroups {
        id: groups

        scene: agents.scene
    }
    Label {
        id: measured

        visible: false
        style: Tokens.type.smallMedium
    }
    Label {
        id: summary

        x: agents.side
        y: agents.headroom
        width: agents.inner
        height: text === "" ? 0 : Tokens.fit(28)
        style: Tokens.type.smallStrong
        text: agents.scene.agentSummary
    }
    Item {
        x: agents.side + agents.nameWidth
        y: lanes.y
        width: agents.inner - agents.nameWidth
        height: Math.min(layout.contentHeight, lanes.height)

        Repeater {
            model: 5

            Rectangle {
                required property int index

                x: Math.round(index / 4 * (parent.width - 1))
                width: 1
                height: parent.height
                color: Tokens.line
            }
        }
    }
    RowList {
        id: lanes

        art: agents
        y: summary.y + summary.height
        height: agents.height - y - legend.height - 18 - agents.footroom
        currentIndex: groups.groupOf(agents.current)
        Keys.onUpPressed: agents.go(groups.beside(agents.current, -1))
        Keys.onDownPressed: agents.go(groups.beside(agents.current, 1))
        model: SceneModel {
            rows: layout.lanes
        }
        delegate: AgentLane {
            art: agents
            nameWidth: agents.nameWidth
            first: groups.first(index)
        }
    }
    Divider {
        x: agents.side
        y: lanes.y + Math.min(layout.contentHeight, lanes.height)
        width: agents.inner
    }
    WorkLegend {
        id: legend

        x: agents.narrow ? agents.side : agents.side + agents.nameWidth
        y: lanes.y + Math.min(layout.contentHeight, lanes.height) + 18
        width: agents.side + agents.inner - x
    }
}
