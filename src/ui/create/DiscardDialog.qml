import QtQuick
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// Asks before what was filled in is dropped.
Dialog {
    id: dialog

    required property CreateRoom room

    objectName: "discardDialog"
    width: Tokens.fit(400)
    padding: 28
    visible: room.asking
    onAboutToShow: keep.forceActiveFocus(Qt.PopupFocusReason)
    onAboutToHide: if (room.asking) room.keepEditing()

    contentItem: Item {
        implicitHeight: lines.height
    }

    Column {
        id: lines

        width: dialog.availableWidth
        spacing: 20
        Accessible.role: Accessible.AlertMessage
        Accessible.name: question.text

        Column {
            width: parent.width
            spacing: 6

            Label {
                id: question

                style: Tokens.type.heading
                text: qsTr("Drop what you typed?")
                Accessible.role: Accessible.Heading
            }
            Label {
                width: parent.width
                style: Tokens.type.line
                color: Tokens.t2
                wrapMode: Text.Wrap
                text: qsTr("Nothing has been created yet. What you filled in is not kept.")
            }
        }
        Row {
            anchors.right: parent.right
            spacing: 8

            Button {
                id: keep

                objectName: "keepEditing"
                text: qsTr("Keep editing")
                onClicked: dialog.room.keepEditing()
            }
            Button {
                objectName: "discardDraft"
                kind: Button.DangerFilled
                text: qsTr("Drop it")
                onClicked: dialog.room.close()
            }
        }
    }
}
