import QtQuick
import Kiv.Controls
import Kiv.Tokens

// What is said right now: the last three lines of it.
Item {
    id: caption

    required property string text

    implicitHeight: Math.min(words.implicitHeight, 3 * Tokens.type.speech.line)
    clip: true

    Label {
        id: words

        objectName: "callCaption"
        y: caption.height - height
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        style: Tokens.type.speech
        color: Tokens.t2
        text: caption.text
        // The transcript reads it out.
        Accessible.ignored: true
    }
}
