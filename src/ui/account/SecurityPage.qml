import QtQuick
import Kiv.Account
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// Another password, and the way out.
Column {
    id: page

    required property AccountRoom account

    function submit() {
        account.changePassword(current.field.text, changed.field.text, repeated.field.text)
    }

    spacing: 16

    AccountBlock {
        width: parent.width
        title: qsTr("Change password")

        PasswordEntry {
            id: current

            width: Math.min(parent.width, 360)
            label: qsTr("Current password")
            field.objectName: "currentPassword"
            field.failed: page.account.passwordFault === Store.PasswordFault.Current
            field.onAccepted: page.submit()
        }
        PasswordEntry {
            id: changed

            width: Math.min(parent.width, 360)
            label: qsTr("New password")
            field.objectName: "newPassword"
            field.failed: page.account.passwordFault === Store.PasswordFault.Changed
            field.placeholderText: qsTr("At least 8 characters")
            field.onAccepted: page.submit()
        }
        PasswordEntry {
            id: repeated

            width: Math.min(parent.width, 360)
            label: qsTr("New password again")
            field.objectName: "repeatedPassword"
            field.failed: page.account.passwordFault === Store.PasswordFault.Repeated
            field.onAccepted: page.submit()
        }
        ErrorLine {
            objectName: "passwordError"
            width: parent.width
            text: page.account.passwordError
        }
        Label {
            objectName: "passwordNote"
            width: parent.width
            visible: text !== ""
            style: Tokens.type.small
            color: Tokens.green.text
            wrapMode: Text.Wrap
            text: page.account.passwordNote
            Accessible.role: Accessible.AlertMessage
        }
        Button {
            objectName: "changePassword"
            kind: Button.Main
            busy: page.account.passwordBusy
            enabled: changed.field.text !== ""
            text: qsTr("Change password")
            onClicked: page.submit()
        }
    }
    AccountBlock {
        width: parent.width
        title: qsTr("This device")

        SettingRow {
            width: parent.width
            name: qsTr("Sign out")
            detail: qsTr("Your conversations and projects stay in the workspace.")
            trailing: out.width

            Button {
                id: out

                objectName: "securitySignOut"
                x: parent.width - width
                anchors.verticalCenter: parent.verticalCenter
                kind: Button.Danger
                text: qsTr("Sign out")
                onClicked: page.account.signOut()
            }
        }
    }
    Connections {
        target: page.account

        function onPasswordChanged() {
            current.field.clear()
            changed.field.clear()
            repeated.field.clear()
        }
    }
}
