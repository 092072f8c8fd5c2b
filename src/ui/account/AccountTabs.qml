pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Account
import Kiv.Controls

// The account pages by name: in a column, or in rows above the page.
Flow {
    id: tabs

    component Entry: QtObject {
        required property string key
        required property string sign
        required property string name
    }

    required property string current
    required property bool stacked

    readonly property list<Entry> entries: [
        Entry { key: "profile"; sign: "user"; name: qsTr("Profile") },
        Entry { key: "plan"; sign: "card"; name: qsTr("Plan") },
        Entry { key: "security"; sign: "shield"; name: qsTr("Security") },
        Entry { key: "memory"; sign: "layers"; name: qsTr("Workspace memory") },
        Entry { key: "sources"; sign: "db"; name: qsTr("Data sources") },
        Entry { key: "voice"; sign: "voice"; name: qsTr("Voice style") },
        Entry { key: "notifications"; sign: "bell"; name: qsTr("Notifications") }
    ]

    signal picked(tab: string)
    signal signOutRequested()

    spacing: 2
    Keys.forwardTo: [keys]
    Keys.onLeftPressed: keys.step(false)
    Keys.onRightPressed: keys.step(true)
    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTr("Account pages")

    RowKeys {
        id: keys

        rows: tabs
    }
    Repeater {
        model: tabs.entries

        AccountTab {
            required property Entry modelData

            objectName: modelData.key + "Tab"
            width: tabs.stacked ? tabs.width : implicitWidth
            iconName: modelData.sign
            text: modelData.name
            chosen: tabs.current === modelData.key
            onClicked: tabs.picked(modelData.key)
        }
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
