import QtQuick
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// Who is signed in, and the way out.
Popover {
    id: popover

    required property AppStore store

    width: 280
    onAboutToShow: accountRow.forceActiveFocus(Qt.PopupFocusReason)

    contentItem: Item {
        implicitHeight: signOut.y + signOut.height
    }

    Avatar {
        x: 10
        y: 10
        size: 40
        initials: popover.store.scope.userInitials
        picture: popover.store.scope.userAvatarURL
        ground: Tokens.raised
    }
    Column {
        x: 62
        y: 12
        width: popover.availableWidth - x - 8

        Label {
            width: parent.width
            style: Tokens.type.strong
            text: popover.store.scope.userName
        }
        Label {
            width: parent.width
            style: Tokens.type.caption
            color: Tokens.t3
            text: popover.store.scope.userEmail
        }
    }
    Divider {
        x: -popover.leftPadding + 1
        y: 66
        width: popover.width - 2
    }
    MenuRow {
        id: accountRow

        objectName: "accountRow"
        y: 79
        width: popover.availableWidth
        iconName: "user"
        text: qsTr("Account")
        hint: qsTr("Ctrl ,")
        KeyNavigation.down: notificationsRow
        onClicked: popover.store.layout.openAccount()
    }
    MenuRow {
        id: notificationsRow

        objectName: "notificationsRow"
        y: accountRow.y + accountRow.height
        width: popover.availableWidth
        iconName: "bell"
        text: qsTr("Notifications")
        KeyNavigation.down: signOut
        onClicked: popover.store.layout.openAccount("notifications")
    }
    Divider {
        x: -popover.leftPadding + 1
        y: notificationsRow.y + notificationsRow.height + 6
        width: popover.width - 2
    }
    MenuRow {
        id: signOut

        objectName: "signOutRow"
        y: notificationsRow.y + notificationsRow.height + 13
        width: popover.availableWidth
        iconName: "out"
        text: qsTr("Sign out")
        destructive: true
        onClicked: {
            popover.close()
            popover.store.account.signOut()
        }
    }
}
