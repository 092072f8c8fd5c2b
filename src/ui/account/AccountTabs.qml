import QtQuick
import Kiv.Account
import Kiv.Controls

// The account pages by name: in a column, or in rows above the page.
Flow {
    id: tabs

    required property string current
    required property bool stacked

    signal picked(tab: string)
    signal signOutRequested()

    spacing: 2
    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTr("Account pages")

    AccountTab {
        objectName: "profileTab"
        width: tabs.stacked ? tabs.width : implicitWidth
        iconName: "user"
        text: qsTr("Profile")
        chosen: tabs.current === "profile"
        onClicked: tabs.picked("profile")
    }
    AccountTab {
        objectName: "planTab"
        width: tabs.stacked ? tabs.width : implicitWidth
        iconName: "card"
        text: qsTr("Plan")
        chosen: tabs.current === "plan"
        onClicked: tabs.picked("plan")
    }
    AccountTab {
        objectName: "securityTab"
        width: tabs.stacked ? tabs.width : implicitWidth
        iconName: "shield"
        text: qsTr("Security")
        chosen: tabs.current === "security"
        onClicked: tabs.picked("security")
    }
    AccountTab {
        objectName: "memoryTab"
        width: tabs.stacked ? tabs.width : implicitWidth
        iconName: "layers"
        text: qsTr("Workspace memory")
        chosen: tabs.current === "memory"
        onClicked: tabs.picked("memory")
    }
    AccountTab {
        objectName: "sourcesTab"
        width: tabs.stacked ? tabs.width : implicitWidth
        iconName: "db"
        text: qsTr("Data sources")
        chosen: tabs.current === "sources"
        onClicked: tabs.picked("sources")
    }
    AccountTab {
        objectName: "voiceTab"
        width: tabs.stacked ? tabs.width : implicitWidth
        iconName: "voice"
        text: qsTr("Voice style")
        chosen: tabs.current === "voice"
        onClicked: tabs.picked("voice")
    }
    AccountTab {
        objectName: "notificationsTab"
        width: tabs.stacked ? tabs.width : implicitWidth
        iconName: "bell"
        text: qsTr("Notifications")
        chosen: tabs.current === "notifications"
        onClicked: tabs.picked("notifications")
    }
    Item {
        width: tabs.width
        height: 21
        visible: tabs.stacked

        Divider {
            x: 12
            y: 10
            width: parent.width - 24
        }
    }
    AccountTab {
        objectName: "accountSignOut"
        width: tabs.stacked ? tabs.width : implicitWidth
        iconName: "out"
        text: qsTr("Sign out")
        destructive: true
        onClicked: tabs.signOutRequested()
    }
}
