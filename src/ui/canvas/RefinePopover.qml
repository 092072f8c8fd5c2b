import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// Asks for a change of what is drawn.
Popover {
    id: popover

    /// What may be asked with one click.
    required property list<replyChip> chips

    signal submitted(text: string)
    signal picked(chip: replyChip)

    width: Tokens.fit(340)
    padding: 12
    onAboutToShow: wish.forceActiveFocus(Qt.PopupFocusReason)
    onClosed: wish.clear()

    contentItem: Item {
        implicitHeight: replies.visible ? replies.y + replies.height : Tokens.fit(40)
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
    ReplyChips {
        id: replies

        y: Tokens.fit(40) + 8
        width: popover.availableWidth
        chips: popover.chips
        most: 3
        onPicked: chip => {
            popover.picked(chip)
            popover.close()
        }
    }
}
