pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Account
import Kiv.Controls
import Kiv.Store

// The documents of the workspace's memory, one a row.
AccountBlock {
    id: list

    component Entry: QtObject {
        required property string key
        required property string name
        required property string detail
    }

    required property AccountRoom account

    readonly property list<Entry> entries: [
        Entry { key: "shared_md"; name: qsTr("Shared"); detail: qsTr("What every agent of the workspace knows") },
        Entry { key: "decisions_md"; name: qsTr("Decisions"); detail: qsTr("What was decided, and why") },
        Entry { key: "routine_md"; name: qsTr("Routine"); detail: qsTr("What happens every day, week and month") },
        Entry { key: "tools_md"; name: qsTr("Tools"); detail: qsTr("What you work with, and how") },
        Entry { key: "goals_md"; name: qsTr("Goals"); detail: qsTr("What all of this is for") },
        Entry { key: "glossary_md"; name: qsTr("Glossary"); detail: qsTr("Your words for things") },
        Entry { key: "owner_learned_md"; name: qsTr("Learned about you"); detail: qsTr("What agents noticed about how you work") },
        Entry { key: "worker_global_rules"; name: qsTr("Global rules"); detail: qsTr("What every agent always does, or never") },
        Entry { key: "worker_chat_rules"; name: qsTr("Chat rules"); detail: qsTr("How agents behave in conversations") },
        Entry { key: "worker_user_facts"; name: qsTr("Facts"); detail: qsTr("What agents should know about you") }
    ]

    signal opened(key: string, title: string)

    title: qsTr("Workspace memory")
    note: qsTr("What agents read before they answer you. Written in markdown.")

    KeyColumn {
        width: parent.width

        Repeater {
            model: list.entries

            DocumentRow {
                required property Entry modelData
                required property int index

                objectName: modelData.key
                width: parent?.width ?? 0
                first: index === 0
                name: modelData.name
                detail: modelData.detail
                value: list.account.field(modelData.key)
                onClicked: list.opened(modelData.key, name)
            }
        }
    }
}
