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
        model: layout.pieces.length

        MarkArea {
            id: mark

            required property int index

            readonly property stackPiece piece: index < layout.pieces.length ? layout.pieces[index] : layout.none

            art: bar.art
            x: piece.x * bar.grown
            width: piece.width * bar.grown
            height: bar.height
            label: piece.others > 0 ? qsTr("%1 more").arg(piece.others) : piece.label
            share: piece.share
            Accessible.ignored: true

            Rectangle {
                anchors.fill: parent
                radius: Math.min(Tokens.radiusSmall, width / 2)
                color: mark.piece.others > 0 ? Tokens.control : bar.art.dataColor(mark.piece.color).base
            }
        }
    }
}
