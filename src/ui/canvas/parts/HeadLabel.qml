import QtQuick
import Kiv.Controls
import Kiv.Tokens

// What a column of a scene holds, above it.
Label {
    anchors.verticalCenter: parent?.verticalCenter
    style: Tokens.type.captionStrong
    color: Tokens.t3
}
