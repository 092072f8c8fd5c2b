import QtQuick
import Kiv.Account
import Kiv.Controls
import Kiv.Icons
import Kiv.Store
import Kiv.Tokens

// A document of the workspace's memory; it opens its editor.
BareButton {
    id: row

    required property string name
    required property string detail
    required property AccountField value
    property bool first: false

    readonly property bool unsaved: value.state === Store.SaveState.Edited || value.state === Store.SaveState.Failed

    implicitHeight: Tokens.fit(60)
    text: name
    Accessible.name: name
    Accessible.description: detail

    background: Item {
        Ground {
            anchors.fill: parent
            anchors.leftMargin: -12
            anchors.rightMargin: -12
            radius: Tokens.radiusControl
            color: row.down ? Tokens.press : row.hovered ? Tokens.hover : Tokens.clear

            FocusRing {
                anchors.margins: -2
                visible: row.visualFocus
            }
        }
        Divider {
            width: parent.width
            visible: !row.first
        }
    }

    SettingRow {
        width: parent.width
        height: parent.height
        name: row.name
        detail: row.detail
        trailing: mark.width + 40
    }
    Label {
        id: mark

        anchors.verticalCenter: parent.verticalCenter
        x: parent.width - width - 28
        style: Tokens.type.caption
        color: row.unsaved ? Tokens.amber.text : Tokens.t3
        text: row.unsaved ? qsTr("Not saved")
            : row.value.text === "" ? qsTr("Empty")
            : qsTr("%Ln character(s)", "", row.value.text.length)
    }
    Icon {
        anchors.verticalCenter: parent.verticalCenter
        x: parent.width - width
        name: "right"
        size: 16
        color: Tokens.t3
    }
}
