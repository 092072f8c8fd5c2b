import QtQuick
import Kiv.Controls
import Kiv.Tokens

// Title and subtitle of a scene.
Column {
    id: head

    required property string title
    required property string sub
    required property int side

    topPadding: side >= 32 ? 28 : 24
    leftPadding: side
    rightPadding: side
    spacing: 4

    FullLabel {
        width: head.width - 2 * head.side
        visible: text !== ""
        style: Tokens.type.title
        wrapMode: Text.Wrap
        maximumLineCount: 2
        text: head.title
        Accessible.ignored: text === ""
        Accessible.role: Accessible.Heading
    }
    FullLabel {
        width: head.width - 2 * head.side
        visible: text !== ""
        style: Tokens.type.line
        color: Tokens.t2
        text: head.sub
        Accessible.ignored: text === ""
    }
}
