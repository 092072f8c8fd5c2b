import QtQuick
import Kiv.Chat

// What a preview leaves out of a message.
Item {
    required property feedRow row
}
