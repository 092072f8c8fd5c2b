import QtQuick
import Kiv.Controls

// The line between two groups of a menu.
Item {
    implicitHeight: 13

    Divider {
        y: 6
        width: parent.width
    }
}
