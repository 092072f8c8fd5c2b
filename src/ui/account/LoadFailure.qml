import QtQuick
import Kiv.Account
import Kiv.Controls
import Kiv.Tokens

// Something could not be loaded: why, and another try.
AccountBlock {
    id: failure

    required property string reason

    signal retryRequested()

    Label {
        width: parent.width
        style: Tokens.type.line
        color: Tokens.t2
        wrapMode: Text.Wrap
        text: failure.reason
        Accessible.role: Accessible.AlertMessage
    }
    Button {
        objectName: "retryLoad"
        iconName: "refresh"
        text: qsTr("Try again")
        onClicked: failure.retryRequested()
    }
}
