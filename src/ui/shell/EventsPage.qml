import QtQuick
import Kiv.Shell
import Kiv.Store
import Kiv.Tokens

// What has happened in the current project, with the canvas to itself.
PanelFrame {
    id: page

    required property AppStore store

    iconName: "events"
    title: qsTr("Events")
    detail: store.scope.projectName
    onEntered: list.forceActiveFocus(Qt.OtherFocusReason)

    Rectangle {
        id: sheet

        x: 4
        y: 4
        width: parent.width - 8
        height: Math.min(parent.height - 28, list.height + 24)
        radius: Tokens.radiusSheet
        color: Tokens.surface
        border.width: 1
        border.color: Tokens.line

        EventList {
            id: list

            objectName: "eventPage"
            x: 12
            y: 12
            width: sheet.width - 24
            most: page.height - 124
            focus: true
            store: page.store
        }
    }
}
