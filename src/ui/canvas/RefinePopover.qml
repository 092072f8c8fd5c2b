import QtQuick
import Kiv.Controls
import Kiv.Tokens

// Asks for a change of what is drawn.
Popover {
    id: popover

    signal submitted(text: string)

    width: 340
    padding: 12
    onAboutToShow: wish.forceActiveFocus(Qt.PopupFocusReason)
    onClosed: wish.clear()

    contentItem: Item {
        implicitHeight: 40
    }

    TextField {
        id: wish

        objectName: "refineField"
        width: popover.availableWidth
        placeholderText: qsTr("What should change?")
        Accessible.name: placeholderText
        onAccepted: if (/\S/.test(text)) {
            popover.submitted(text)
            popover.close()
        }
    }
}
