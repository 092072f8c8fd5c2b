import QtQuick
import QtQuick.Templates as T

// A button without a look of its own: the space bar presses it, Return and Enter do, and the mouse. A
// key that is held down presses once.
T.Button {
    id: button

    function activate() {
        if (checkable)
            toggle()
        clicked()
    }

    Accessible.name: text
    Keys.onReturnPressed: event => {
        if (!event.isAutoRepeat)
            button.activate()
    }
    Keys.onEnterPressed: event => {
        if (!event.isAutoRepeat)
            button.activate()
    }
}
