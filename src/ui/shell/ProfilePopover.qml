import QtQuick
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// Who is signed in, and the way out.
Popover {
    id: popover

    required property AppStore store

    width: 280
    onAboutToShow: signOut.forceActiveFocus(Qt.PopupFocusReason)

    contentItem: Item {
        implicitHeight: 115
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
    MenuRow {
        id: signOut

        objectName: "signOutRow"
        y: 79
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
