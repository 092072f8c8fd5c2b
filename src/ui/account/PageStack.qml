import QtQuick
import Kiv.Account
import Kiv.Store
import Kiv.Tokens

// The pages; one of them shows.
Item {
    id: stack

    required property AppStore store

    readonly property AccountRoom account: store.account
    readonly property string tab: store.layout.account

    implicitHeight: childrenRect.height
    onTabChanged: turn.restart()

    NumberAnimation {
        id: turn

        target: stack
        property: "opacity"
        from: 0
        to: 1
        duration: Tokens.fade
        easing.type: Easing.OutCubic
    }

    ProfilePage {
        objectName: "profilePage"
        width: parent.width
        height: visible ? implicitHeight : 0
        visible: stack.tab === "profile"
        store: stack.store
    }
    PlanPage {
        objectName: "planPage"
        width: parent.width
        height: visible ? implicitHeight : 0
        visible: stack.tab === "plan"
        account: stack.account
    }
    SecurityPage {
        objectName: "securityPage"
        width: parent.width
        height: visible ? implicitHeight : 0
        visible: stack.tab === "security"
        account: stack.account
    }
    MemoryPage {
        objectName: "memoryPage"
        width: parent.width
        height: visible ? implicitHeight : 0
        visible: stack.tab === "memory"
        account: stack.account
        calendar: stack.store.calendar
    }
    SourcesPage {
        objectName: "sourcesPage"
        width: parent.width
        height: visible ? implicitHeight : 0
        visible: stack.tab === "sources"
        account: stack.account
    }
    VoicePage {
        objectName: "voicePage"
        width: parent.width
        height: visible ? implicitHeight : 0
        visible: stack.tab === "voice"
        account: stack.account
    }
    NotificationsPage {
        objectName: "notificationsPage"
        width: parent.width
        height: visible ? implicitHeight : 0
        visible: stack.tab === "notifications"
        account: stack.account
    }
}
