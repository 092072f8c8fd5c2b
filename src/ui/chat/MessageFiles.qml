pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Chat
import Kiv.Store

// The files of a message, which open in the browser.
Flow {
    id: row

    required property list<msgFile> files

    spacing: 8

    Repeater {
        model: row.files

        delegate: FileChip {
            required property msgFile modelData

            objectName: "file:" + name
            maximumWidth: Math.min(280, row.width)
            name: modelData.name
            kind: modelData.kind
            Accessible.role: Accessible.Link
            Accessible.name: qsTr("Open %1").arg(name)
            onClicked: Qt.openUrlExternally(modelData.url)
        }
    }
}
