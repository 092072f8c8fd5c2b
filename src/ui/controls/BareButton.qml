import QtQuick
import QtQuick.Templates as T

// A button without a look of its own: the space bar presses it, Return and Enter do, and the mouse.
T.Button {
    id: button

    function activate() {
        if (checkable)
            toggle()
        clicked()
    }

    Accessible.name: text
    Keys.onReturnPressed: button.activate()
    Keys.onEnterPressed: button.activate()
}
