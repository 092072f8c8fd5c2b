import QtQuick
import Kiv.Chat
import Kiv.Controls
import Kiv.Shell
import Kiv.Tokens

// What program this is, and which version of it.
Dialog {
    id: dialog

    required property Commands commands

    signal noticesRequested

    width: Tokens.fit(420)
    objectName: "aboutDialog"
    onAboutToShow: close.forceActiveFocus(Qt.PopupFocusReason)

    contentItem: Item {
        implicitHeight: lines.height
    }

    Column {
        id: lines

        width: dialog.availableWidth
        spacing: 12

        Mark {
            anchors.horizontalCenter: parent.horizontalCenter
            size: 56
        }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            style: Tokens.type.title
            text: "KIV"
            Accessible.role: Accessible.Heading
        }
        Label {
            objectName: "aboutVersion"
            anchors.horizontalCenter: parent.horizontalCenter
            color: Tokens.t2
            text: qsTr("Version %1").arg(dialog.commands.version)
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            color: Tokens.t2
            text: qsTr("Talk to your agents and see what they answer.")
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 16

            TextLink {
                objectName: "copyDiagnostics"
                bottomPadding: 4
                style: Tokens.type.small
                text: qsTr("Copy diagnostics")
                onClicked: {
                    Clipboard.setText(dialog.commands.diagnostics())
                    Toasts.show(qsTr("Copied"))
                }
            }
            TextLink {
                objectName: "showNotices"
                bottomPadding: 4
                style: Tokens.type.small
                text: qsTr("Third-party notices")
                onClicked: {
                    dialog.close()
                    dialog.noticesRequested()
                }
            }
        }
        Button {
            id: close

            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("Close")
            onClicked: dialog.close()
        }
    }
}
