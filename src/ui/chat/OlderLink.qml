import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Tokens

// Leads to the whole conversation, above the messages that show of it.
Item {
    id: older

    required property feedRow row
    required property bool compact

    signal clicked()

    implicitHeight: link.y + link.height

    TextLink {
        id: link

        anchors.horizontalCenter: parent.horizontalCenter
        y: older.compact ? 16 : 20
        color: hovered ? Tokens.t1 : Tokens.t3
        text: qsTr("Open the full conversation")
        onClicked: older.clicked()
    }
}
