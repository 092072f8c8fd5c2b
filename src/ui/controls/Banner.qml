import QtQuick
import Kiv.Icons
import Kiv.Tokens

// A line across the window that says what is the matter, and what to do about it.
Rectangle {
    id: banner

    required property string iconName
    required property string text
    required property string action
    property DataColor tone: Tokens.amber
    property bool closable: false

    signal acted()
    signal closed()

    implicitHeight: Math.max(Tokens.fit(40), words.height + 16)
    color: tone.tint
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    Icon {
        id: sign

        x: 20
        anchors.verticalCenter: parent.verticalCenter
        name: banner.iconName
        color: banner.tone.text
    }
    Label {
        id: words

        anchors.left: sign.right
        anchors.leftMargin: 8
        anchors.right: link.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        style: Tokens.type.smallMedium
        color: banner.tone.text
        wrapMode: Text.Wrap
        text: banner.text
    }
    TextLink {
        id: link

        objectName: "bannerAction"
        x: parent.width - width - (banner.closable ? 64 : 24)
        visible: banner.action !== ""
        anchors.verticalCenter: parent.verticalCenter
        style: Tokens.type.smallMedium
        color: banner.tone.text
        text: banner.action
        onClicked: banner.acted()
    }
    IconButton {
        objectName: "bannerClose"
        x: parent.width - width - 16
        anchors.verticalCenter: parent.verticalCenter
        visible: banner.closable
        size: 32
        iconName: "close"
        color: banner.tone.text
        text: qsTr("Close")
        onClicked: banner.closed()
    }
}
