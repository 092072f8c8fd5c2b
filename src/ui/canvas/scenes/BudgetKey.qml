import QtQuick
import Kiv.Controls
import Kiv.Tokens

// How a budget draws its plan or what was spent.
Row {
    id: key

    required property bool plan
    required property string text

    spacing: 6

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: 16
        height: key.plan ? 12 : 6
        radius: 3
        color: key.plan ? Tokens.sunken : Tokens.blue.base

        Rectangle {
            visible: key.plan
            anchors.right: parent.right
            width: 2
            height: parent.height
            color: Tokens.t1
        }
    }
    Label {
        style: Tokens.type.captionStrong
        color: Tokens.t3
        text: key.text
    }
}
