import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// What can be done with a drawn scene.
Row {
    id: actions

    required property CanvasRoom canvas
    required property ChatRoom chat
    required property Item sheet
    /// Icons alone, where room is short.
    required property bool compact

    /// Why the last export failed.
    readonly property string failure: exporter.failure

    spacing: 4

    CanvasExport {
        id: exporter

        objectName: "canvasExport"
        canvas: actions.canvas
        sheet: actions.sheet
        onCopied: words => {
            copied.restart()
            Toasts.show(words)
        }
        onSaved: (words, folder) => Toasts.show(words, qsTr("Open the folder"), folder)
    }
    Timer {
        id: copied

        interval: Tokens.confirmation
    }
    Timer {
        running: actions.failure !== ""
        interval: Tokens.notice
        onTriggered: exporter.forgetFailure()
    }
    Shortcut {
        sequence: "Ctrl+E"
        enabled: actions.visible
        onActivated: exporter.savePicture()
    }
    IconButton {
        objectName: "copyButton"
        anchors.verticalCenter: parent.verticalCenter
        iconName: copied.running ? "check" : "copy"
        text: copied.running ? qsTr("Copied") : qsTr("Copy")
        onClicked: exporter.copy()
    }
    Button {
        id: exportButton

        objectName: "exportButton"
        anchors.verticalCenter: parent.verticalCenter
        size: Button.Small
        kind: Button.Quiet
        iconName: "download"
        trailingIcon: actions.compact ? "" : "down"
        text: actions.compact ? "" : qsTr("Export")
        labelColor: Tokens.t2
        Accessible.name: qsTr("Export")
        onClicked: menu.toggle()

        PopupPlace {
            id: menu

            Component.onCompleted: setSource("ExportMenu.qml", { "exporter": exporter })
        }
        TipLoader {
            active: actions.compact && exportButton.hovered && !menu.opened
            text: qsTr("Export")
        }
    }
    Item {
        width: 4
        height: 1
    }
    Button {
        id: refineButton

        objectName: "refineButton"
        anchors.verticalCenter: parent.verticalCenter
        size: Button.Small
        iconName: "refine"
        text: actions.compact ? "" : qsTr("Refine")
        Accessible.name: qsTr("Refine")
        onClicked: refine.toggle()

        PopupPlace {
            id: refine

            Component.onCompleted: setSource("RefinePopover.qml", { "canvas": actions.canvas, "chat": actions.chat })
        }
        TipLoader {
            active: actions.compact && refineButton.hovered && !refine.opened
            text: qsTr("Refine")
        }
    }
}
