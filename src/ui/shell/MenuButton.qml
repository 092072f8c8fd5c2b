import QtQuick
import Kiv.Controls
import Kiv.Shell
import Kiv.Tokens

// The program's mark and name, which open the main menu.
BareButton {
    id: button

    required property Commands commands
    property bool offline: false

    function toggle() {
        menu.toggle()
    }

    objectName: "menuButton"
    implicitWidth: word.x + word.width + 8
    implicitHeight: 36
    text: qsTr("Main menu")
    Accessible.role: Accessible.ButtonMenu
    onClicked: toggle()

    background: Ground {
        radius: Tokens.radiusControl
        color: button.down || menu.opened ? Tokens.press : button.hovered ? Tokens.hover : Tokens.clear

        FocusRing {
            visible: button.visualFocus
        }
    }

    Mark {
        id: mark

        x: 6
        anchors.verticalCenter: parent.verticalCenter
        offline: button.offline
    }
    Label {
        id: word

        anchors.left: mark.right
        anchors.leftMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        style: Tokens.type.word
        text: "KIV"
        Accessible.ignored: true
    }
    TipLoader {
        active: button.hovered && !menu.opened
        text: qsTr("Main menu")
        keys: "F10"
    }
    PopupPlace {
        id: menu

        Component.onCompleted: setSource("MainMenuView.qml", { "commands": button.commands })
    }
}
