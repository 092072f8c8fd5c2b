import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// What a decision comes to.
Rectangle {
    id: outcome

    required property string title
    required property string text
    required property bool even

    implicitHeight: words.implicitHeight + 28
    radius: Tokens.radiusCard
    color: even ? Tokens.inset : Tokens.accentTint
    Accessible.role: Accessible.StaticText
    Accessible.name: Figures.joined([title, text], ", ")

    Icon {
        x: 18
        y: 15
        name: "decision"
        color: outcome.even ? Tokens.t2 : Tokens.accentText
    }
    Column {
        id: words

        x: 50
        y: 14
        width: outcome.width - x - 18

        FullLabel {
            width: parent.width
            style: Tokens.type.rowTitle
            text: outcome.title
        }
        FullLabel {
            visible: text !== ""
            width: parent.width
            color: Tokens.t2
            wrapMode: Text.Wrap
            maximumLineCount: 2
            text: outcome.text
        }
    }
}
