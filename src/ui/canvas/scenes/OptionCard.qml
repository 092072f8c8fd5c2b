import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// One of two options and its total.
Rectangle {
    id: card

    required property string letter
    required property string name
    required property string total
    required property DataColor colors
    required property bool better
    required property bool even
    property bool mirrored: false

    readonly property string verdict: better ? qsTr("Recommended") : even ? qsTr("Even") : ""
    readonly property real nameX: 18 + disc.width + 12

    implicitHeight: Tokens.fit(64)
    radius: Tokens.radiusCard
    color: better ? colors.tint : Tokens.surface
    border.width: 1
    border.color: better ? colors.line : Tokens.line
    Accessible.role: Accessible.StaticText
    Accessible.name: Figures.joined([letter, name, total, verdict], ", ")

    Disc {
        id: disc

        anchors.verticalCenter: parent.verticalCenter
        x: card.mirrored ? card.width - width - 18 : 18
        size: 32
        letters: card.letter
        base: card.colors.base
        color: card.better ? Tokens.surface : card.colors.tint
    }
    Column {
        anchors.verticalCenter: parent.verticalCenter
        x: card.mirrored ? 18 + figure.width + 12 : card.nameX
        width: card.width - card.nameX - figure.width - 30

        FullLabel {
            width: parent.width
            horizontalAlignment: card.mirrored ? Text.AlignRight : Text.AlignLeft
            style: Tokens.type.rowTitle
            wrapMode: Text.Wrap
            maximumLineCount: card.verdict === "" ? 2 : 1
            text: card.name
        }
        Label {
            visible: text !== ""
            width: parent.width
            horizontalAlignment: card.mirrored ? Text.AlignRight : Text.AlignLeft
            style: Tokens.type.caption
            color: Tokens.t2
            text: card.verdict
            Accessible.ignored: true
        }
    }
    Label {
        id: figure

        anchors.verticalCenter: parent.verticalCenter
        x: card.mirrored ? 18 : card.width - width - 18
        style: Tokens.type.figureLarge
        color: card.colors.text
        text: card.total
        Accessible.ignored: true
    }
}
