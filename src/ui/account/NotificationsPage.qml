import QtQuick
import Kiv.Account
import Kiv.Store
import Kiv.Controls

// What the person is told about outside the window.
AccountBlock {
    id: page

    required property AccountRoom account

    title: qsTr("Notifications")

    Column {
        width: parent.width

        SwitchRow {
            fieldName: "mailSwitch"
            width: parent.width
            name: qsTr("Mail")
            detail: qsTr("A summary of what your agents did, and news about your projects, to your address.")
            value: page.account.field("notification_email")
        }
        Divider {
            width: parent.width
        }
        SwitchRow {
            fieldName: "approvalsSwitch"
            width: parent.width
            name: qsTr("Approvals")
            detail: qsTr("A message whenever an agent waits for your approval.")
            value: page.account.field("notification_approvals")
        }
    }
}
