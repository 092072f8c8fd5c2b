import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Tokens

// The day of the messages below it.
Item {
    id: day

    required property feedRow row
    required property bool compact

    implicitHeight: caption.y + caption.height

    Divider {
        anchors.verticalCenter: caption.verticalCenter
        width: caption.x - 12
    }
    Label {
        id: caption

        anchors.horizontalCenter: parent.horizontalCenter
        y: day.compact ? 16 : 20
        style: Tokens.type.captionMedium
        color: Tokens.t3
        text: day.row.label
    }
    Divider {
        anchors.verticalCenter: caption.verticalCenter
        x: caption.x + caption.width + 12
        width: day.width - x
    }
}
