import QtQuick
import Kiv.Controls

// A tooltip, made when it is needed.
Loader {
    property string text: ""
    property string keys: ""
    property bool beside: false
    property bool above: false

    anchors.fill: parent

    sourceComponent: Item {
        id: host

        readonly property TipLoader place: parent as TipLoader

        Tip {
            parent: host
            text: host.place?.text ?? ""
            keys: host.place?.keys ?? ""
            x: host.place?.beside ? host.width + 6 : Math.round((host.width - implicitWidth) / 2)
            y: host.place?.beside ? Math.round((host.height - implicitHeight) / 2)
                : host.place?.above ? -implicitHeight - 6
                : host.height + 6
            // Only now does it wait for its delay.
            Component.onCompleted: visible = true
        }
    }
}
