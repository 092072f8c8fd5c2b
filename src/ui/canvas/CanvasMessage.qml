pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// What the canvas says while it has nothing to draw, with the questions that one click asks.
Item {
    id: message

    property string iconName: ""
    property string heading: ""
    property string body: ""
    property list<string> questions
    property bool offline: false

    signal asked(question: string)

    Column {
        anchors.centerIn: parent
        width: Math.min(parent.width - 48, 520)
        spacing: 8

        Item {
            width: parent.width
            height: 66

            Mark {
                anchors.horizontalCenter: parent.horizontalCenter
                visible: message.iconName === ""
                size: 56
                offline: message.offline
            }
            Rectangle {
                anchors.horizontalCenter: parent.horizontalCenter
                visible: message.iconName !== ""
                width: 56
                height: 56
                radius: Tokens.radiusSheet
                color: Tokens.surface
                border.width: 1
                border.color: Tokens.line

                Icon {
                    anchors.centerIn: parent
                    name: message.iconName
                    size: 26
                    color: Tokens.accentText
                }
            }
        }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(implicitWidth, parent.width, message.iconName === "" ? 480 : 320)
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            style: message.iconName === "" ? Tokens.type.subheading : Tokens.type.lead
            text: message.heading
            Accessible.role: Accessible.Heading
        }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: text !== ""
            width: Math.min(implicitWidth, Tokens.fit(260))
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            color: Tokens.t2
            text: message.body
        }
        // In one line, or one below the other.
        Grid {
            anchors.horizontalCenter: parent.horizontalCenter
            topPadding: 12
            spacing: 8
            columns: row.implicitWidth <= parent.width ? Math.max(1, message.questions.length) : 1
            horizontalItemAlignment: Grid.AlignHCenter

            Repeater {
                model: message.questions

                ReplyChip {
                    required property string modelData
                    required property int index

                    objectName: "canvasChip:" + index
                    maximumWidth: message.width - 48
                    text: modelData
                    onClicked: message.asked(modelData)
                }
            }
        }
        // How wide the chips are in one line.
        Row {
            id: row

            visible: false
            spacing: 8

            Repeater {
                model: message.questions

                ReplyChip {
                    required property string modelData

                    text: modelData
                }
            }
        }
    }
}
