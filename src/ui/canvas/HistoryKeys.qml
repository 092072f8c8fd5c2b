import QtQuick
import Kiv.Store

// The keys and mouse buttons that go through the history of the canvas.
Item {
    id: keys

    required property CanvasRoom canvas

    Shortcut {
        sequence: "Alt+Left"
        enabled: keys.canvas.hasEarlier
        onActivated: keys.canvas.stepBack()
    }
    Shortcut {
        sequence: "Alt+Right"
        enabled: keys.canvas.hasLater
        onActivated: keys.canvas.stepForward()
    }
    TapHandler {
        acceptedButtons: Qt.BackButton
        onTapped: keys.canvas.stepBack()
    }
    TapHandler {
        acceptedButtons: Qt.ForwardButton
        onTapped: keys.canvas.stepForward()
    }
}
