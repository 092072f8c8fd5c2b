import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// A card and what belongs to it.
MarkArea {
    id: card

    required property briefItem modelData
    required property int index

    height: words.height + 24
    ringRadius: Tokens.radiusBlock
    label: modelData.text
    value: modelData.meta

    Lift {
        radius: Tokens.radiusBlock
    }
    Rectangle {
        anchors.fill: parent
        radius: Tokens.radiusBlock
        color: Tokens.surface
        border.width: 1
        border.color: Tokens.line
    }
    Column {
        id: words

        x: 12
        y: 12
        width: parent.width - 24
        spacing: 3

        Label {
            width: parent.width
            style: Tokens.type.smallMedium
            wrapMode: Text.Wrap
            maximumLineCount: 4
            text: card.modelData.text
            Accessible.ignored: true
        }
        Label {
            visible: text !== ""
            width: parent.width
            style: Tokens.type.caption
            color: Tokens.t3
            text: card.modelData.meta
            Accessible.ignored: true
        }
    }
}
