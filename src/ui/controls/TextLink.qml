import QtQuick
import Kiv.Controls
import Kiv.Tokens

// A command that looks like a link.
BareButton {
    id: link

    property TypeStyle style: Tokens.type.captionMedium
    property color color: Tokens.accentText
    property bool ringed: visualFocus

    implicitWidth: caption.implicitWidth
    implicitHeight: caption.implicitHeight + bottomPadding
    Accessible.role: Accessible.Link

    Label {
        id: caption

        style: link.style
        font.underline: link.hovered
        color: link.color
        text: link.text
        Accessible.ignored: true
    }
    FocusRing {
        visible: link.ringed
        targetRadius: 2
    }
    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }
}
