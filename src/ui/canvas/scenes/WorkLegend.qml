pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// What the colours and signs of work stand for.
SceneLegend {
    Repeater {
        model: [Scene.WorkStatus.Done, Scene.WorkStatus.Doing, Scene.WorkStatus.Todo, Scene.WorkStatus.Blocked,
            Scene.WorkStatus.Unknown]

        Row {
            id: entry

            required property int modelData

            readonly property WorkStyle look: WorkStyle {
                status: entry.modelData
            }

            spacing: 6

            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: 10
                height: 10
                radius: 3
                color: entry.look.mark
                border.width: entry.look.todo ? 1.5 : 0
                border.color: entry.look.markEdge
            }
            Label {
                style: Tokens.type.caption
                color: Tokens.t2
                text: entry.look.word
            }
        }
    }
}
