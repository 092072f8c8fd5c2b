import QtQuick
import Kiv.Account
import Kiv.Store

// Where answers come from: the sources that agents may use, and the models that think.
Column {
    id: page

    required property AccountRoom account

    spacing: 16

    AccountBlock {
        width: parent.width
        title: qsTr("Data sources")
        note: qsTr("What agents use unless you tell them otherwise in a conversation.")

        ModeEntry {
            width: parent.width
            value: page.account.field("default_data_sources_mode")
        }
    }
    AccountBlock {
        width: parent.width
        title: qsTr("Models")
        note: qsTr("Who thinks for each part of the work. What is empty follows the workspace.")

        ModelRow {
            width: parent.width
            role: "preferred"
            name: qsTr("Preferred")
            detail: qsTr("For everything without a model of its own")
            account: page.account
        }
        ModelRow {
            width: parent.width
            role: "chat"
            name: qsTr("Chat")
            detail: qsTr("Answers in conversations")
            account: page.account
        }
        ModelRow {
            width: parent.width
            role: "orchestrator"
            name: qsTr("Orchestrator")
            detail: qsTr("Plans and hands out work")
            account: page.account
        }
        ModelRow {
            width: parent.width
            role: "pipeline"
            name: qsTr("Pipeline")
            detail: qsTr("Runs tasks in the background")
            account: page.account
        }
        ModelRow {
            width: parent.width
            role: "browser_summary"
            name: qsTr("Browser summary")
            detail: qsTr("Sums up pages that agents read")
            account: page.account
        }
        ModelRow {
            width: parent.width
            role: "compaction"
            name: qsTr("Compaction")
            detail: qsTr("Shortens long conversations")
            account: page.account
        }
    }
}
