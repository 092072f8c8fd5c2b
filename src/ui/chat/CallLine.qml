import QtQuick
import QtQuick.Templates as T
import Kiv.Chat
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// A call that took place at this point of the conversation. It opens to what was said.
Item {
    id: line

    required property feedRow row
    required property bool compact

    signal toggled()

    implicitHeight: button.y + button.height

    T.Button {
        id: button

        readonly property color ink: hovered ? Tokens.t1 : Tokens.t3

        objectName: "callLine:" + line.row.callId
        anchors.horizontalCenter: parent.horizontalCenter
        y: line.compact ? 12 : 16
        implicitWidth: content.width + 20
        implicitHeight: Tokens.fit(28)
        focusPolicy: Qt.NoFocus
        hoverEnabled: line.row.callHasLines
        text: line.row.label
        Accessible.name: text
        Accessible.checkable: line.row.callHasLines
        Accessible.checked: line.row.callOpen
        onClicked: line.toggled()

        background: Rectangle {
            radius: height / 2
            color: button.down ? Tokens.press : button.hovered ? Tokens.hover : "transparent"
        }

        Row {
            id: content

            anchors.centerIn: parent
            spacing: 6

            Icon {
                anchors.verticalCenter: parent.verticalCenter
                name: "phone"
                size: 14
                color: button.ink
            }
            Label {
                anchors.verticalCenter: parent.verticalCenter
                style: Tokens.type.captionMedium
                tabular: true
                color: button.ink
                text: line.row.label
                Accessible.ignored: true
            }
            Icon {
                anchors.verticalCenter: parent.verticalCenter
                visible: line.row.callHasLines
                name: line.row.callOpen ? "up" : "down"
                size: 14
                color: button.ink
            }
        }
    }
}
