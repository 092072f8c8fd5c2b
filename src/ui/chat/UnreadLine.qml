import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Tokens

// Stands above the messages that came while the conversation was not shown.
Item {
    id: unread

    required property feedRow row
    required property bool compact

    implicitHeight: caption.y + caption.height

    Label {
        id: caption

        objectName: "unreadLine"
        y: unread.compact ? 16 : 20
        style: Tokens.type.captionMedium
        color: Tokens.accentText
        text: qsTr("New")
    }
    Rectangle {
        anchors.verticalCenter: caption.verticalCenter
        x: caption.width + 12
        width: unread.width - x
        height: 1
        color: Tokens.accentLine
    }
}
