import QtQuick
import QtQuick.Templates as T
import Kiv.Tokens

T.ScrollBar {
    id: bar

    implicitWidth: 14
    implicitHeight: 14
    padding: 4
    minimumSize: 0.08
    visible: size < 1

    contentItem: Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        color: bar.pressed ? Tokens.control : Tokens.line2
        opacity: bar.active || bar.policy === T.ScrollBar.AlwaysOn ? 1 : 0

        Behavior on opacity {
            NumberAnimation { duration: Tokens.quick }
        }
    }
}
