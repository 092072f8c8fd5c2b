pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Chat
import Kiv.Store

// The files of the next message, in the ask bar.
Flow {
    id: tray

    required property AttachmentRoom attachments

    /// What the keyboard stood on goes away: it needs another place.
    signal focusLost()

    spacing: 8
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Attached files")

    Repeater {
        model: tray.attachments.chatFiles

        delegate: FileChip {
            required property string fileId
            required property string sizeText
            required property int upload
            required progress

            objectName: "attachment:" + name
            maximumWidth: Math.min(220, (tray.width - tray.spacing) / 2)
            failed: upload === Store.Upload.Failed
            pressable: failed
            removable: true
            detail: failed ? qsTr("Try again")
                : sizeText !== "" ? sizeText
                : upload === Store.Upload.Running ? qsTr("Uploading")
                : ""
            Accessible.description: failed ? qsTr("The upload failed")
                : upload === Store.Upload.Running ? qsTr("Uploading")
                : ""
            onClicked: {
                if (activeFocus)
                    tray.focusLost()
                tray.attachments.retryUpload(fileId)
            }
            onRemoveRequested: {
                if (closeFocused)
                    tray.focusLost()
                tray.attachments.removeChatFile(fileId)
            }
        }
    }
}
