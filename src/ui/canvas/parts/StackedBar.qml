pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Tokens

// The parts of a whole in one bar. Each part has a row of its own beside it, so the keys leave the
// pieces out.
Item {
    id: bar

    required property ArtScene art
    /// The scene's list of parts.
    property alias parts: layout.parts

    readonly property real grown: art.entrance.grown(0)

    implicitHeight: 20

    StackLayout {
        id: layout

        width: bar.width
    }
    Repeater {
        model: SceneModel {
            rows: layout.pieces
        }

        MarkArea {
            id: mark

            required property stackPiece modelData

            property real from: modelData.x
            property real extent: modelData.width

            art: bar.art
            x: from * bar.grown
            width: extent * bar.grown
            height: bar.height
            label: modelData.others > 0 ? qsTr("%1 more").arg(modelData.others) : modelData.label
            share: modelData.share
            Accessible.ignored: true

            Behavior on from {
                enabled: layout.redrawn
                NumberAnimation { duration: Tokens.draw; easing.type: Easing.OutCubic }
            }
            Behavior on extent {
                enabled: layout.redrawn
                NumberAnimation { duration: Tokens.draw; easing.type: Easing.OutCubic }
            }

            Rectangle {
                anchors.fill: parent
                radius: Math.min(Tokens.radiusSmall, width / 2)
                color: mark.modelData.others > 0 ? Tokens.control : bar.art.dataColor(mark.modelData.color).base
            }
        }
    }
}
