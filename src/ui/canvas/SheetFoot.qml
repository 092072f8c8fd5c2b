import QtQuick
import Kiv.Canvas
import Kiv.Chat
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// How much the scene draws, and the message that it came from.
Item {
    id: foot

    required property string countLine
    required property int side
    required property sceneSource source
    required property string time
    required property bool linked
    required property bool pictured

    signal messageRequested()

    implicitHeight: Tokens.fit(44)

    Divider {
        width: parent.width
    }
    Label {
        x: foot.side
        width: Math.max(0, line.x - x - 16)
        anchors.verticalCenter: parent.verticalCenter
        style: Tokens.type.caption
        color: Tokens.t3
        text: foot.countLine
    }
    Row {
        id: line

        x: parent.width - width - foot.side
        anchors.verticalCenter: parent.verticalCenter
        visible: foot.source.name !== ""
        spacing: 8

        Figure {
            anchors.verticalCenter: parent.verticalCenter
            kind: foot.source.kind
            name: foot.source.name
            colorHex: foot.source.colorHex
            size: 18
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, foot.width / 2)
            style: Tokens.type.caption
            tabular: true
            color: Tokens.t3
            text: Figures.joined([foot.source.name, foot.time], ", ")
        }
        TextLink {
            anchors.verticalCenter: parent.verticalCenter
            objectName: "showMessage"
            visible: foot.linked
            ringed: visualFocus && !foot.pictured
            text: qsTr("Show message")
            onClicked: foot.messageRequested()
        }
    }
}
