import QtQuick
import Kiv.Controls
import Kiv.Shell
import Kiv.Store
import Kiv.Tokens

// Who is signed in, how the window looks, and the way out.
Popover {
    id: popover

    required property AppStore store
    readonly property PopupPlace place: parent as PopupPlace

    /// Behind it, so that the sheet knows where the keys were.
    property bool leadsToShortcuts: false

    signal shortcutsRequested()

    width: Math.max(280, Tokens.fit(280))
    height: Math.min(implicitHeight, place?.most ?? 600)
    visible: place?.shown ?? false
    onAboutToHide: store.layout.closePopovers()
    onClosed: {
        if (leadsToShortcuts)
            shortcutsRequested()
        leadsToShortcuts = false
    }
    onAboutToShow: accountRow.forceActiveFocus(Qt.PopupFocusReason)

    contentItem: Item {
        implicitHeight: rows.height
    }

    Flickable {
        id: scroller

        width: popover.availableWidth
        height: popover.availableHeight
        contentHeight: rows.height
        clip: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: Tokens.flickDeceleration

        Column {
            id: rows

            width: popover.availableWidth

            Item {
                width: parent.width
                height: Math.max(60, words.height + 20)

                Avatar {
                    x: 10
                    anchors.verticalCenter: parent.verticalCenter
                    size: 40
                    initials: popover.store.scope.userInitials
                    picture: popover.store.scope.userAvatarURL
                    ground: Tokens.raised
                }
                Column {
                    id: words

                    x: 62
                    anchors.verticalCenter: parent.verticalCenter
                    width: shortcuts.x - x - 8

                    FullLabel {
                        width: parent.width
                        style: Tokens.type.strong
                        text: popover.store.scope.userName
                        Accessible.ignored: text === ""
                    }
                    FullLabel {
                        width: parent.width
                        style: Tokens.type.caption
                        color: Tokens.t3
                        text: popover.store.scope.userEmail
                        Accessible.ignored: text === ""
                    }
                }
                IconButton {
                    id: shortcuts

                    objectName: "shortcutsButton"
                    x: parent.width - width - 4
                    anchors.verticalCenter: parent.verticalCenter
                    size: 32
                    iconName: "keyboard"
                    text: qsTr("Keyboard shortcuts")
                    onClicked: {
                        popover.leadsToShortcuts = true
                        popover.close()
                    }
                }
            }
            MenuGap {
                width: parent.width
            }
            MenuRow {
                id: accountRow

                objectName: "accountRow"
                width: parent.width
                iconName: "user"
                text: qsTr("Account")
                hint: qsTr("Ctrl ,")
                KeyNavigation.down: notificationsRow
                onClicked: popover.store.layout.openAccount()
            }
            MenuRow {
                id: notificationsRow

                objectName: "notificationsRow"
                width: parent.width
                iconName: "bell"
                text: qsTr("Notifications")
                KeyNavigation.down: notices
                onClicked: popover.store.layout.openAccount("notifications")
            }
            MenuSwitch {
                id: notices

                objectName: "noticesSwitch"
                width: parent.width
                iconName: "system"
                text: qsTr("Desktop notifications")
                KeyNavigation.down: appearance.first
                onToggled: popover.store.notices.choose(checked)

                Binding on checked {
                    value: popover.store.notices.wanted
                }
            }
            MenuGap {
                width: parent.width
            }
            AppearanceSettings {
                id: appearance

                width: parent.width
                appearance: popover.store.appearance
                below: signOut
            }
            Item {
                width: parent.width
                height: 6
            }
            MenuGap {
                width: parent.width
            }
            MenuRow {
                id: signOut

                objectName: "signOutRow"
                width: parent.width
                iconName: "out"
                text: qsTr("Sign out")
                destructive: true
                onClicked: {
                    popover.close()
                    popover.store.account.signOut()
                }
            }
        }
    }

    FocusInSight {
        area: scroller
    }
}
