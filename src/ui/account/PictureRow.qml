import QtQuick
import Kiv.Account
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// The person's picture beside their name, and another picture for them.
Item {
    id: row

    required property AppStore store

    readonly property AccountRoom account: store.account
    readonly property ScopeRoom scope: store.scope

    implicitHeight: 64 + (reason.visible ? reason.height + 8 : 0)

    Avatar {
        objectName: "accountPicture"
        size: 64
        initials: row.scope.userInitials
        picture: row.scope.userAvatarURL
    }
    Column {
        x: 80
        y: 32 - height / 2
        width: change.x - x - 12

        Label {
            width: parent.width
            style: Tokens.type.cardTitle
            text: row.scope.userName
        }
        Label {
            width: parent.width
            style: Tokens.type.small
            color: Tokens.t2
            text: row.scope.userEmail
        }
    }
    Button {
        id: change

        objectName: "changePicture"
        x: parent.width - width
        y: 32 - height / 2
        size: Button.Small
        busy: row.scope.avatarUploading
        enabled: !busy
        text: busy ? qsTr("Uploading…") : qsTr("Change picture")
        onClicked: row.account.pickPicture()
    }
    Row {
        id: reason

        y: 72
        width: parent.width
        visible: row.account.pictureError !== ""
        spacing: 8

        ErrorLine {
            width: Math.min(implicitWidth, parent.width - again.width - 8)
            text: row.account.pictureError
        }
        TextLink {
            id: again

            objectName: "retryPicture"
            visible: row.account.pictureRepeatable
            text: qsTr("Try again")
            onClicked: row.account.retryPicture()
        }
    }
    CropDialog {
        id: crop

        account: row.account
    }
    Connections {
        target: row.account

        function onPictureChosen(file) {
            crop.begin(file)
        }
    }
}
