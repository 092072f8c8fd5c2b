import QtQuick
import Kiv.Controls

// The news of the moment, the newest at the bottom.
Column {
    spacing: 8

    Repeater {
        model: Toasts

        Toast {
            objectName: "toast:" + index
            anchors.right: parent?.right
        }
    }
}
