import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// The ways out of the canvas.
Popover {
    id: menu

    required property CanvasExport exporter

    width: Tokens.fit(260)
    onAboutToShow: picture.forceActiveFocus(Qt.PopupFocusReason)

    contentItem: Item {
        implicitHeight: 4 * Tokens.fit(36)
    }

    Column {
        MenuRow {
            id: picture

            objectName: "savePictureRow"
            width: menu.availableWidth
            iconName: "download"
            text: qsTr("Picture (PNG)")
            hint: qsTr("Ctrl E")
            KeyNavigation.down: table
            onClicked: {
                menu.close()
                menu.exporter.savePicture()
            }
        }
        MenuRow {
            id: table

            objectName: "saveTableRow"
            width: menu.availableWidth
            iconName: "sheet"
            text: qsTr("Table (CSV)")
            KeyNavigation.down: copyPicture
            onClicked: {
                menu.close()
                menu.exporter.saveTable()
            }
        }
        MenuRow {
            id: copyPicture

            objectName: "copyPictureRow"
            width: menu.availableWidth
            iconName: "image"
            text: qsTr("Copy picture")
            KeyNavigation.down: copyTable
            onClicked: {
                menu.close()
                menu.exporter.copyPicture()
            }
        }
        MenuRow {
            id: copyTable

            objectName: "copyTableRow"
            width: menu.availableWidth
            iconName: "copy"
            text: qsTr("Copy as table")
            KeyNavigation.down: picture
            onClicked: {
                menu.close()
                menu.exporter.copyTable()
            }
        }
    }
}
