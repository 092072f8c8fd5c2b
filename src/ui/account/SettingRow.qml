import QtQuick
import Kiv.Controls
import Kiv.Tokens

// A setting: its name, a line about it, and at the right what sets it.
Item {
    id: row

    required property string name
    property string detail: ""
    property int trailing: 0

    implicitHeight: Math.max(Tokens.fit(60), words.height + 20)

    Column {
        id: words

        anchors.verticalCenter: parent.verticalCenter
        width: parent.width - row.trailing - 16

        Label {
            width: parent.width
            style: Tokens.type.name
            text: row.name
        }
        Label {
            width: parent.width
            visible: text !== ""
            style: Tokens.type.caption
            color: Tokens.t3
            wrapMode: Text.Wrap
            text: row.detail
        }
    }
}
