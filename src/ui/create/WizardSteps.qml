pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Controls
import Kiv.Create
import Kiv.Store
import Kiv.Tokens

// The pages of the wizard at its left side, and how far it has come.
Item {
    id: side

    required property CreateRoom room
    readonly property string title: room.kind === Store.CreateKind.Project ? qsTr("New project") : qsTr("New agent")

    Rectangle {
        anchors.fill: parent
        radius: Tokens.radiusDialog
        color: Tokens.rail
    }
    Rectangle {
        x: parent.width - width
        width: Tokens.radiusDialog
        height: parent.height
        color: Tokens.rail
    }
    Rectangle {
        x: parent.width - width
        width: 1
        height: parent.height
        color: Tokens.line
    }
    Label {
        x: 26
        y: 28
        style: Tokens.type.cardTitle
        text: side.title
        Accessible.role: Accessible.Heading
    }
    KeyColumn {
        x: 16
        y: Tokens.fit(68)
        width: parent.width - 32
        spacing: 4

        Repeater {
            model: side.room.stepNames

            StepRow {
                required property string modelData
                required property int index

                objectName: "wizardStep" + number
                width: parent?.width ?? 0
                number: index + 1
                text: modelData
                current: number === side.room.stepNumber
                done: number < side.room.stepNumber
                enabled: done && side.room.phase === Store.CreatePhase.Editing
                onClicked: side.room.goTo(number)
            }
        }
    }
}
