import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// Asks for a change of what is drawn.
Popover {
    id: popover

    required property CanvasRoom canvas
    required property ChatRoom chat

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
            popover.chat.send(text)
            popover.close()
        }
    }
    ReplyChips {
        id: replies

        y: Tokens.fit(40) + 8
        width: popover.availableWidth
        chips: popover.canvas.artInfo.offers
        most: 3
        onPicked: chip => {
            if (popover.canvas.artInfo.chips.length > 0)
                popover.chat.pickChip(popover.canvas.sourceMessageId, chip)
            else
                popover.chat.send(chip.send)
            popover.close()
        }
    }
}
