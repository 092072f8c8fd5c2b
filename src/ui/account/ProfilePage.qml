import QtQuick
import Kiv.Account
import Kiv.Store

// Who the person is: picture, names, company and preferences.
AccountBlock {
    id: page

    required property AppStore store

    readonly property AccountRoom account: store.account
    readonly property real half: grid.columns === 2 ? (grid.width - grid.columnSpacing) / 2 : grid.width

    title: qsTr("Profile")

    PictureRow {
        width: parent.width
        store: page.store
    }
    Grid {
        id: grid

        width: parent.width
        columns: width >= 460 ? 2 : 1
        columnSpacing: 20
        rowSpacing: 18

        TextEntry {
            fieldName: "fullName"
            width: page.half
            label: qsTr("Full name")
            value: page.account.field("full_name")
        }
        TextEntry {
            fieldName: "handle"
            width: page.half
            label: qsTr("Handle")
            placeholder: qsTr("How others mention you")
            value: page.account.field("handle")
        }
        TextEntry {
            fieldName: "companyName"
            width: page.half
            label: qsTr("Company name")
            value: page.account.field("company_name")
        }
        TextEntry {
            fieldName: "companyWebsite"
            width: page.half
            label: qsTr("Company website")
            placeholder: qsTr("company.example")
            value: page.account.field("company_website")
        }
        ChoiceEntry {
            fieldName: "companySize"
            width: page.half
            label: qsTr("Company size")
            kind: ChoiceModel.CompanySizes
            value: page.account.field("company_size")
        }
        ChoiceEntry {
            fieldName: "industry"
            width: page.half
            label: qsTr("Industry")
            kind: ChoiceModel.Industries
            value: page.account.field("industry")
        }
        TextEntry {
            fieldName: "jobTitle"
            width: page.half
            label: qsTr("Job title")
            value: page.account.field("jobTitle")
        }
        ChoiceEntry {
            fieldName: "timeZone"
            width: page.half
            label: qsTr("Time zone")
            kind: ChoiceModel.TimeZones
            value: page.account.field("time_zone")
        }
        ChoiceEntry {
            fieldName: "language"
            width: page.half
            label: qsTr("Language")
            kind: ChoiceModel.Languages
            value: page.account.field("preferred_language")
        }
        ChoiceEntry {
            fieldName: "country"
            width: page.half
            label: qsTr("Country")
            kind: ChoiceModel.Countries
            value: page.account.field("preferred_country")
        }
    }
    ListEntry {
        fieldName: "sectors"
        width: parent.width
        label: qsTr("Preferred sectors")
        placeholder: qsTr("Add a sector")
        value: page.account.field("preferred_sectors")
    }
}
