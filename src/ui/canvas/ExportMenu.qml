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

    KeyColumn {
        MenuRow {
            id: picture

            objectName: "savePictureRow"
            width: menu.availableWidth
            iconName: "download"
            text: qsTr("Picture (PNG)")
            hint: qsTr("Ctrl E")
            onClicked: {
                menu.close()
                menu.exporter.savePicture()
            }
        }
        MenuRow {
            objectName: "saveTableRow"
            width: menu.availableWidth
            iconName: "sheet"
            text: qsTr("Table (CSV)")
            onClicked: {
                menu.close()
                menu.exporter.saveTable()
            }
        }
        MenuRow {
            objectName: "copyPictureRow"
            width: menu.availableWidth
            iconName: "image"
            text: qsTr("Copy picture")
            onClicked: {
                menu.close()
                menu.exporter.copyPicture()
            }
        }
        MenuRow {
            objectName: "copyTableRow"
            width: menu.availableWidth
            iconName: "copy"
            text: qsTr("Copy as table")
            onClicked: {
                menu.close()
                menu.exporter.copyTable()
            }
        }
    }
}
