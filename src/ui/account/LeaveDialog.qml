import QtQuick
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// Asks before something that is not saved is dropped.
Dialog {
    id: dialog

    required property AccountRoom account

    width: Tokens.fit(424)
    padding: 28
    visible: account.leaveAsked
    onAboutToShow: stay.forceActiveFocus(Qt.PopupFocusReason)
    onAboutToHide: if (account.leaveAsked) account.stay()

    contentItem: Item {
        implicitHeight: column.height
    }

    Column {
        id: column

        width: dialog.availableWidth
        spacing: 10

        Label {
            width: dialog.availableWidth
            style: Tokens.type.heading
            text: qsTr("Leave without saving?")
            Accessible.role: Accessible.Heading
        }
        Label {
            width: dialog.availableWidth
            style: Tokens.type.line
            color: Tokens.t2
            wrapMode: Text.Wrap
            text: qsTr("Something that you entered is not saved. It is lost when you leave now.")
        }
        Row {
            anchors.right: parent.right
            topPadding: 12
            spacing: 10

            Button {
                objectName: "leaveAnyway"
                kind: Button.Danger
                text: qsTr("Drop it and leave")
                onClicked: dialog.account.leaveAnyway()
            }
            Button {
                id: stay

                objectName: "stayHere"
                kind: Button.Main
                text: qsTr("Keep editing")
                onClicked: dialog.account.stay()
            }
        }
    }
}
