import QtQuick
import Kiv.Call
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// Something that happened in a call.
Item {
    id: event

    required property string words
    required property int seconds

    implicitHeight: Math.max(16, news.height)
    Accessible.role: Accessible.ListItem
    Accessible.name: words

    Icon {
        x: 6
        y: Math.round((Tokens.type.caption.line - height) / 2)
        name: "phone"
        size: 16
        color: Tokens.t3
    }
    Label {
        id: news

        x: 40
        width: parent.width - x
        wrapMode: Text.Wrap
        style: Tokens.type.caption
        color: Tokens.t3
        text: qsTr("%1 · %2").arg(event.words).arg(CallText.length(event.seconds))
        Accessible.ignored: true
    }
}
