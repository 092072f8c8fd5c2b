import QtQuick
import Kiv.Controls
import Kiv.Icons
import Kiv.Store
import Kiv.Tokens

// Who is signed in, how the window looks, and the way out.
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
        KeyNavigation.down: theme
        onClicked: popover.store.layout.openAccount("notifications")
    }
    Icon {
        id: moon

        x: 10
        y: notificationsRow.y + notificationsRow.height + 8
        name: "moon"
        color: Tokens.t2
    }
    Label {
        x: 40
        y: moon.y
        text: qsTr("Theme")
        Accessible.ignored: true
    }
    Segments {
        id: theme

        objectName: "themeChoice"
        x: 6
        y: moon.y + 30
        width: popover.availableWidth - 12
        name: qsTr("Theme")
        labels: [qsTr("System"), qsTr("Light"), qsTr("Dark")]
        current: popover.store.appearance.theme
        KeyNavigation.down: signOut
        onPicked: index => popover.store.appearance.chooseTheme(index)
    }
    Divider {
        x: -popover.leftPadding + 1
        y: theme.y + theme.height + 10
        width: popover.width - 2
    }
    MenuRow {
        id: signOut

        objectName: "signOutRow"
        y: theme.y + theme.height + 17
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
