import QtQuick
import Kiv.Tokens

// A place where something will be.
Rectangle {
    implicitHeight: 11
    radius: Math.min(6, height / 2)
    color: Tokens.skeleton
    Accessible.ignored: true
}
