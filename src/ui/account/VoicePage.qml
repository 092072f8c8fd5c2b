import QtQuick
import Kiv.Account
import Kiv.Store

// How agents talk to the person, and when.
Column {
    id: page

    required property AccountRoom account

    spacing: 16

    AccountBlock {
        width: parent.width
        title: qsTr("Voice style")
        note: qsTr("How agents write and speak to you.")

        ChoiceEntry {
            fieldName: "style"
            width: parent.width
            label: qsTr("Communication style")
            kind: ChoiceModel.Styles
            value: page.account.field("communication_style")
        }
        ChoiceEntry {
            fieldName: "voiceLanguage"
            width: parent.width
            label: qsTr("Preferred language")
            kind: ChoiceModel.Languages
            value: page.account.field("preferred_language")
        }
    }
    AccountBlock {
        width: parent.width
        title: qsTr("Working hours")
        note: qsTr("Outside of them agents keep calls and questions for later.")

        Row {
            width: parent.width
            spacing: 20

            ChoiceEntry {
                fieldName: "hoursStart"
                width: (parent.width - parent.spacing) / 2
                label: qsTr("From")
                kind: ChoiceModel.Hours
                value: page.account.field("working_hours_start")
            }
            ChoiceEntry {
                fieldName: "hoursEnd"
                width: (parent.width - parent.spacing) / 2
                label: qsTr("To")
                kind: ChoiceModel.Hours
                value: page.account.field("working_hours_end")
            }
        }
        DaysEntry {
            width: parent.width
            value: page.account.field("working_hours_days")
        }
    }
}
