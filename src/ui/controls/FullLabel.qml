import QtQuick
import Kiv.Controls

// A label that tells all of its text when it is pointed at and has no room for it.
Label {
    id: label

    Accessible.ignored: true

    HoverHandler {
        id: pointer

        enabled: label.truncated
    }
    TipLoader {
        active: pointer.hovered
        text: label.text
    }
}
