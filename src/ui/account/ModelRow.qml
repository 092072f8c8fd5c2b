import QtQuick
import Kiv.Account
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// Provider and model of one part of the work.
Column {
    id: row

    /// The beginning of its keys.
    required property string role
    required property string name
    required property string detail
    required property AccountRoom account

    spacing: 8

    Column {
        width: parent.width

        Label {
            width: parent.width
            style: Tokens.type.name
            text: row.name
        }
        Label {
            width: parent.width
            style: Tokens.type.caption
            color: Tokens.t3
            text: row.detail
        }
    }
    Row {
        width: parent.width
        spacing: 20

        TextEntry {
            fieldName: row.role + "Provider"
            width: (parent.width - parent.spacing) / 2
            label: qsTr("Provider")
            placeholder: qsTr("As in the workspace")
            value: row.account.field(row.role + "_llm_provider")
        }
        TextEntry {
            fieldName: row.role + "Model"
            width: (parent.width - parent.spacing) / 2
            label: qsTr("Model")
            placeholder: qsTr("As in the workspace")
            value: row.account.field(row.role + "_llm_model")
        }
    }
}
