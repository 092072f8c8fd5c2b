import QtQuick
import Kiv.Controls
import Kiv.Tokens

// A password under its label, hidden unless its eye is open.
Field {
    id: entry

    /// Whether it can be read.
    property alias shown: eye.checked

    field.trailing: 32
    field.echoMode: eye.checked ? TextInput.Normal : TextInput.Password
    field.passwordCharacter: "•"
    field.inputMethodHints: Qt.ImhSensitiveData | Qt.ImhNoAutoUppercase | Qt.ImhNoPredictiveText

    IconButton {
        id: eye

        parent: entry.field
        x: parent.width - width - 4
        anchors.verticalCenter: parent.verticalCenter
        size: 32
        objectName: "passwordEye"
        checkable: true
        iconName: "eye"
        color: checked ? Tokens.accentText : Tokens.t3
        text: checked ? qsTr("Hide the password") : qsTr("Show the password")
    }
}
