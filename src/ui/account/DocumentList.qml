import QtQuick
import Kiv.Account
import Kiv.Store

// The documents of the workspace's memory, one a row.
AccountBlock {
    id: list

    required property AccountRoom account

    signal opened(key: string, title: string)

    title: qsTr("Workspace memory")
    note: qsTr("What agents read before they answer you. Written in markdown.")

    Column {
        width: parent.width

        DocumentRow {
            objectName: "shared_md"
            width: parent.width
            first: true
            name: qsTr("Shared")
            detail: qsTr("What every agent of the workspace knows")
            value: list.account.field("shared_md")
            onClicked: list.opened("shared_md", name)
        }
        DocumentRow {
            objectName: "decisions_md"
            width: parent.width
            name: qsTr("Decisions")
            detail: qsTr("What was decided, and why")
            value: list.account.field("decisions_md")
            onClicked: list.opened("decisions_md", name)
        }
        DocumentRow {
            objectName: "routine_md"
            width: parent.width
            name: qsTr("Routine")
            detail: qsTr("What happens every day, week and month")
            value: list.account.field("routine_md")
            onClicked: list.opened("routine_md", name)
        }
        DocumentRow {
            objectName: "tools_md"
            width: parent.width
            name: qsTr("Tools")
            detail: qsTr("What you work with, and how")
            value: list.account.field("tools_md")
            onClicked: list.opened("tools_md", name)
        }
        DocumentRow {
            objectName: "goals_md"
            width: parent.width
            name: qsTr("Goals")
            detail: qsTr("What all of this is for")
            value: list.account.field("goals_md")
            onClicked: list.opened("goals_md", name)
        }
        DocumentRow {
            objectName: "glossary_md"
            width: parent.width
            name: qsTr("Glossary")
            detail: qsTr("Your words for things")
            value: list.account.field("glossary_md")
            onClicked: list.opened("glossary_md", name)
        }
        DocumentRow {
            objectName: "owner_learned_md"
            width: parent.width
            name: qsTr("Learned about you")
            detail: qsTr("What agents noticed about how you work")
            value: list.account.field("owner_learned_md")
            onClicked: list.opened("owner_learned_md", name)
        }
        DocumentRow {
            objectName: "worker_global_rules"
            width: parent.width
            name: qsTr("Global rules")
            detail: qsTr("What every agent always does, or never")
            value: list.account.field("worker_global_rules")
            onClicked: list.opened("worker_global_rules", name)
        }
        DocumentRow {
            objectName: "worker_chat_rules"
            width: parent.width
            name: qsTr("Chat rules")
            detail: qsTr("How agents behave in conversations")
            value: list.account.field("worker_chat_rules")
            onClicked: list.opened("worker_chat_rules", name)
        }
        DocumentRow {
            objectName: "worker_user_facts"
            width: parent.width
            name: qsTr("Facts")
            detail: qsTr("What agents should know about you")
            value: list.account.field("worker_user_facts")
            onClicked: list.opened("worker_user_facts", name)
        }
    }
}
