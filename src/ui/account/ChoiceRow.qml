import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// One choice of a list.
T.Button {
    id: row

    required property int index
    required property string value
    required property string label
    property bool chosen: false
    /// The keys are at it.
    property bool marked: false

    implicitHeight: Tokens.fit(36)
    focusPolicy: Qt.NoFocus
    Accessible.role: Accessible.ListItem
    Accessible.name: label

    background: Rectangle {
        radius: Tokens.radiusControl
        color: row.hovered || row.marked ? Tokens.hoverRaised : "transparent"
    }

    Label {
        anchors.verticalCenter: parent.verticalCenter
        x: 10
        width: parent.width - x - 36
        style: row.chosen ? Tokens.type.name : Tokens.type.line
        text: row.label
        Accessible.ignored: true
    }
    Icon {
        anchors.verticalCenter: parent.verticalCenter
        x: parent.width - width - 10
        visible: row.chosen
        name: "check"
        size: 16
        color: Tokens.accentText
    }
}
