import QtQuick
import QtQuick.Templates as T
import Kiv.Controls

// The news of the moment, the newest at the bottom: over popovers, below dialogs.
T.Popup {
    /// Where it stands: so far from the right and the lower edge of its parent.
    property real right: 24
    property real bottom: 24

    x: parent.width - width - right
    y: parent.height - height - bottom
    z: 1
    visible: parent.visible && rows.count > 0
    closePolicy: T.Popup.NoAutoClose
    padding: 0
    implicitWidth: contentItem.implicitWidth
    implicitHeight: contentItem.implicitHeight

    contentItem: Item {
        implicitWidth: column.width
        implicitHeight: column.height
    }

    Column {
        id: column

        spacing: 8

        Repeater {
            id: rows

            model: Toasts

            Toast {
                objectName: "toast:" + index
                anchors.right: parent?.right
            }
        }
    }
}
