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
    onAboutToShow: theme.forceActiveFocus(Qt.PopupFocusReason)

    contentItem: Item {
        implicitHeight: 212
    }

    Avatar {
        x: 10
        y: 10
        size: 40
        initials: popover.store.scope.userInitials
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
    Icon {
        x: 10
        y: 81
        name: "moon"
        color: Tokens.t2
    }
    Label {
        x: 40
        y: 81
        text: qsTr("Theme")
        Accessible.ignored: true
    }
    Segments {
        id: theme

        objectName: "themeChoice"
        x: 6
        y: 112
        width: popover.availableWidth - 12
        name: qsTr("Theme")
        labels: [qsTr("System"), qsTr("Light"), qsTr("Dark")]
        current: popover.store.appearance.theme
        onPicked: index => popover.store.appearance.chooseTheme(index)
    }
    Divider {
        x: -popover.leftPadding + 1
        y: 162
        width: popover.width - 2
    }
    MenuRow {
        id: signOut

        objectName: "signOutRow"
        y: 176
        width: popover.availableWidth
        iconName: "out"
        text: qsTr("Sign out")
        destructive: true
        onClicked: {
            popover.close()
            popover.store.session.logout()
        }
    }
}
