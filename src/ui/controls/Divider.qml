import QtQuick
import Kiv.Tokens

Rectangle {
    implicitHeight: 1
    implicitWidth: 1
    color: Tokens.line
}
