pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// An agent and its work.
FocusScope {
    id: lane

    required property laneRow modelData
    required property int index
    required property ArtScene art
    required property int nameWidth
    /// The number of its first mark.
    required property int first

    x: 8
    width: art.inner
    height: modelData.height
    focus: ListView.isCurrentItem
    Accessible.role: Accessible.Grouping
    Accessible.name: Figures.joined([modelData.name, modelData.role], ", ")

    Divider {
        width: parent.width
        visible: lane.index > 0
    }
    Disc {
        id: disc

        anchors.verticalCenter: parent.verticalCenter
        visible: !lane.art.narrow
        size: 36
        letters: lane.modelData.name
        base: lane.art.dataColor((lane.index + 1) % 5).base
    }
    Column {
        anchors.verticalCenter: parent.verticalCenter
        x: disc.visible ? 48 : 0
        width: lane.nameWidth - x - 12

        FullLabel {
            width: parent.width
            style: Tokens.type.strong
            wrapMode: Text.Wrap
            maximumLineCount: 2
            text: lane.modelData.name
        }
        FullLabel {
            width: parent.width
            visible: text !== ""
            style: Tokens.type.caption
            color: Tokens.t3
            text: lane.modelData.role
        }
    }
    Repeater {
        model: SceneModel {
            rows: lane.modelData.blocks
        }

        WorkBlock {
            required property int index

            art: lane.art
            place: lane.first + index
            trackX: lane.nameWidth
        }
    }
}
