import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// One thing that the palette has found.
T.ItemDelegate {
    id: row

    required property string title
    required property string detail
    required property string sign
    required property string keys

    height: Tokens.fit(40)
    focusPolicy: Qt.NoFocus
    text: title
    Accessible.name: detail === "" ? title : qsTr("%1, %2").arg(title).arg(detail)
    Accessible.role: Accessible.ListItem

    background: Rectangle {
        radius: Tokens.radiusControl
        color: row.hovered || row.highlighted ? Tokens.hoverRaised : "transparent"
    }

    Icon {
        x: 12
        anchors.verticalCenter: parent.verticalCenter
        name: row.sign
        size: 18
        color: Tokens.t2
    }
    FullLabel {
        id: name

        x: 42
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, Tokens.fit(300))
        style: Tokens.type.name
        text: row.title
    }
    FullLabel {
        anchors.left: name.right
        anchors.leftMargin: 8
        anchors.right: trailing.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        style: Tokens.type.line
        color: Tokens.t3
        text: row.detail
    }
    Label {
        id: trailing

        x: row.width - width - 12
        anchors.verticalCenter: parent.verticalCenter
        style: Tokens.type.caption
        tabular: true
        color: Tokens.t3
        text: row.keys
        Accessible.ignored: true
    }
}
