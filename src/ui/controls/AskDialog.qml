import QtQuick
import Kiv.Controls
import Kiv.Tokens

// Asks before something that a person entered is dropped.
Dialog {
    id: dialog

    required property string question
    required property string body
    required property string drop
    property alias dropButton: dropButton
    property alias keepButton: keepButton

    signal dropped()
    signal kept()

    width: Tokens.fit(424)
    padding: 28
    onAboutToShow: keepButton.forceActiveFocus(Qt.PopupFocusReason)

    contentItem: Item {
        implicitHeight: column.height
    }

    Column {
        id: column

        width: dialog.availableWidth
        spacing: 10
        Accessible.role: Accessible.AlertMessage
        Accessible.name: dialog.question

        Label {
            width: parent.width
            style: Tokens.type.heading
            wrapMode: Text.Wrap
            text: dialog.question
            Accessible.role: Accessible.Heading
        }
        Label {
            width: parent.width
            style: Tokens.type.line
            color: Tokens.t2
            wrapMode: Text.Wrap
            text: dialog.body
        }
        Row {
            anchors.right: parent.right
            topPadding: 12
            spacing: 10

            Button {
                id: keepButton

                text: qsTr("Keep editing")
                onClicked: dialog.kept()
            }
            Button {
                id: dropButton

                kind: Button.DangerFilled
                text: dialog.drop
                onClicked: dialog.dropped()
            }
        }
    }
}
