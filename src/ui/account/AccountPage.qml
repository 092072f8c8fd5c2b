import QtQuick
import QtQuick.Templates as T
import Kiv.Account
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// The account of the person who is signed in, in the canvas's place: the pages by name, and the one
// that is open.
FocusScope {
    id: page

    required property AppStore store

    readonly property AccountRoom account: store.account
    readonly property string tab: store.layout.account
    readonly property bool wide: width >= 1000
    readonly property real column: Math.min(1000, width - 48)

    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Account")
    Keys.onEscapePressed: account.leave()
    onTabChanged: scroller.contentY = 0

    FocusInSight {
        area: scroller
    }
    Flickable {
        id: scroller

        anchors.fill: parent
        contentWidth: width
        contentHeight: body.y + body.height + 40
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: Tokens.flickDeceleration
        clip: true

        T.ScrollBar.vertical: ScrollBar {}

        Item {
            id: head

            x: Math.round((scroller.width - width) / 2)
            y: 28
            width: page.column
            height: Tokens.fit(36)

            IconButton {
                objectName: "leaveAccount"
                x: -8
                anchors.verticalCenter: parent.verticalCenter
                focus: true
                iconName: "left"
                text: qsTr("Back")
                keys: qsTr("Esc")
                onClicked: page.account.leave()
            }
            Label {
                x: 36
                anchors.verticalCenter: parent.verticalCenter
                style: Tokens.type.title
                text: qsTr("Account")
                Accessible.role: Accessible.Heading
            }
            Label {
                objectName: "accountState"
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                visible: page.account.profileLoad === Store.LoadState.Ready
                style: Tokens.type.small
                color: page.account.saveState === Store.SaveState.Failed ? Tokens.dangerText : Tokens.t3
                text: page.account.saveState === Store.SaveState.Stored ? qsTr("All changes saved")
                    : page.account.saveState === Store.SaveState.Saving ? qsTr("Saving…")
                    : page.account.saveState === Store.SaveState.Failed ? qsTr("Not everything is saved")
                    : qsTr("Not saved yet")
            }
        }
        AccountTabs {
            id: tabs

            x: head.x
            y: head.y + head.height + 20
            width: page.wide ? Tokens.fit(232) : page.column
            stacked: page.wide
            current: page.tab
            onPicked: tab => page.store.layout.openAccount(tab)
            onSignOutRequested: page.account.signOut()
        }
        AccountBody {
            id: body

            x: head.x + (page.wide ? Tokens.fit(232) + 48 : 0)
            y: page.wide ? tabs.y : tabs.y + tabs.height + 20
            width: Math.min(720, page.column - (page.wide ? Tokens.fit(232) + 48 : 0))
            store: page.store
        }
    }
}
