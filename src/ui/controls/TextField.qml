import QtQuick
import QtQuick.Templates as T
import Kiv.Icons
import Kiv.Tokens

// One line of typing.
T.TextField {
    id: field

    property bool failed: false
    property string iconName: ""
    /// Room kept free at the right end for what a form puts there.
    property int trailing: 0

    implicitHeight: Tokens.fit(40)
    implicitWidth: 240
    leftPadding: iconName === "" ? 12 : 38
    rightPadding: 12 + trailing
    verticalAlignment: TextInput.AlignVCenter
    font.family: Tokens.family
    font.pixelSize: Tokens.type.body.size
    color: enabled ? Tokens.t1 : Tokens.tDisabled
    placeholderTextColor: Tokens.t3
    selectionColor: Tokens.selection
    selectedTextColor: Tokens.t1
    selectByMouse: true

    background: Rectangle {
        radius: Tokens.radiusControl
        color: field.enabled ? Tokens.surface : Tokens.sunken
        border.width: field.failed || field.activeFocus ? 2 : 1
        border.color: field.failed ? Tokens.danger : field.activeFocus ? Tokens.focus : Tokens.control

        Icon {
            x: 11
            anchors.verticalCenter: parent.verticalCenter
            visible: name !== ""
            name: field.iconName
            size: 18
            color: Tokens.t3
        }
    }

    Label {
        anchors.verticalCenter: parent.verticalCenter
        x: field.leftPadding
        width: field.width - x - field.rightPadding
        visible: field.text === "" && field.preeditText === ""
        color: Tokens.t3
        text: field.placeholderText
        Accessible.ignored: true
    }
}
