import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// What an objective is called, whose it is, and its score.
Item {
    id: head

    required property okObj objective
    required property DataColor colors

    implicitHeight: Math.max(tile.height, words.height)
    Accessible.role: Accessible.RowHeader
    Accessible.name: Figures.joined([objective.name, objective.owner, objective.score], ", ")

    Rectangle {
        id: tile

        width: Tokens.fit(64)
        height: Tokens.fit(56)
        radius: Tokens.radiusCard
        color: head.colors.tint

        Label {
            anchors.centerIn: parent
            style: Tokens.type.score
            color: head.colors.text
            text: head.objective.score
            Accessible.ignored: true
        }
    }
    Column {
        id: words

        x: tile.width + 16
        y: Math.max(0, Math.round((tile.height - height) / 2))
        width: parent.width - x
        spacing: 5

        Label {
            width: parent.width
            style: Tokens.type.cardTitle
            wrapMode: Text.Wrap
            maximumLineCount: 2
            text: head.objective.name
            Accessible.ignored: true
        }
        Row {
            visible: head.objective.owner !== ""
            spacing: 8

            PersonDisc {
                size: 20
                name: head.objective.owner
            }
            Label {
                width: Math.min(implicitWidth, words.width - 28)
                anchors.verticalCenter: parent.verticalCenter
                style: Tokens.type.small
                color: Tokens.t2
                text: head.objective.owner
                Accessible.ignored: true
            }
        }
    }
}
