import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// A headline figure with its change.
MarkArea {
    id: tile

    required property kpiCard card

    implicitHeight: content.implicitHeight + 32
    label: card.label
    value: card.value
    tone: card.delta
    ringRadius: Tokens.radiusCard

    Rectangle {
        anchors.fill: parent
        radius: Tokens.radiusCard
        color: Tokens.surface
        border.width: 1
        border.color: Tokens.line
    }
    Column {
        id: content

        x: 18
        width: tile.width - 36
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        Label {
            width: parent.width
            style: Tokens.type.smallMedium
            color: Tokens.t2
            text: tile.card.label
            Accessible.ignored: true
        }
        Label {
            width: parent.width
            style: Tokens.type.figure
            // A figure is never cut: it gets smaller.
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 14
            elide: Text.ElideNone
            text: tile.card.value
            Accessible.ignored: true
        }
        DeltaChip {
            visible: text !== ""
            width: Math.min(implicitWidth, parent.width)
            card: tile.card
            Accessible.ignored: true
        }
    }
}
