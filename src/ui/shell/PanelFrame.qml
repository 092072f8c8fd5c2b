import QtQuick
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// A page of the program in the place of the canvas: what it is called, a way out, and its content.
FocusScope {
    id: frame

    required property string iconName
    required property string title
    property string detail: ""
    default property alias content: body.data

    signal closed()
    /// The page has come, and takes the focus.
    signal entered()

    Accessible.role: Accessible.Pane
    Accessible.name: title
    Keys.onEscapePressed: closed()

    Rectangle {
        id: sign

        x: 24
        y: 18
        width: 32
        height: 32
        radius: Tokens.radiusControl
        color: Tokens.surface
        border.width: 1
        border.color: Tokens.line

        Icon {
            anchors.centerIn: parent
            name: frame.iconName
            size: 18
            color: Tokens.accentText
        }
    }
    Label {
        id: word

        anchors.left: sign.right
        anchors.leftMargin: 10
        anchors.verticalCenter: sign.verticalCenter
        style: Tokens.type.strong
        text: frame.title
        Accessible.role: Accessible.Heading
    }
    FullLabel {
        anchors.left: word.right
        anchors.leftMargin: 10
        anchors.right: close.left
        anchors.rightMargin: 16
        anchors.verticalCenter: sign.verticalCenter
        style: Tokens.type.small
        color: Tokens.t3
        text: frame.detail
        Accessible.ignored: text === ""
    }
    IconButton {
        id: close

        objectName: "panelClose"
        x: parent.width - width - 24
        y: 16
        iconName: "close"
        text: qsTr("Close")
        keys: "Esc"
        onClicked: frame.closed()
    }
    Item {
        id: body

        x: 20
        y: 60
        width: parent.width - 40
        height: parent.height - y
    }
}
