pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Create
import Kiv.Store
import Kiv.Tokens

// What an agent may use, and how far it goes without asking.
FocusScope {
    id: page

    required property CreateRoom room
    readonly property string head: qsTr("Tools and autonomy")
    readonly property string sub: qsTr("What it works with, and when it asks you first.")

    visible: room.step === Store.CreateStep.Tools
    onVisibleChanged: if (visible) tools.itemAt(0).forceActiveFocus(Qt.OtherFocusReason)

    Flickable {
        id: scroller

        anchors.fill: parent
        // Room for the ring of a card.
        anchors.leftMargin: -4
        anchors.rightMargin: -4
        contentHeight: levels.y + levels.height
        clip: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: Tokens.flickDeceleration

        T.ScrollBar.vertical: ScrollBar {}

        Label {
            id: toolsLabel

            x: 4
            style: Tokens.type.smallMedium
            text: qsTr("Tools")
        }
        Grid {
            id: grid

            x: 4
            y: toolsLabel.height + 6
            width: scroller.width - 8
            columns: 2
            spacing: 8
            Accessible.role: Accessible.Grouping
            Accessible.name: toolsLabel.text

            Repeater {
                id: tools

                model: page.room.toolChoices

                ChoiceCard {
                    required property int index
                    required property createChoice modelData

                    objectName: "tool:" + modelData.id
                    width: (grid.width - grid.spacing) / 2
                    several: true
                    compact: true
                    choice: modelData
                    checked: page.room.toolMarks[index]
                    onClicked: page.room.toggleTool(modelData.id)

                    TipLoader {
                        active: (parent as ChoiceCard)?.hovered ?? false
                        text: (parent as ChoiceCard)?.modelData.summary ?? ""
                    }
                }
            }
        }
        Label {
            id: autonomyLabel

            x: 4
            y: grid.y + grid.height + 18
            style: Tokens.type.smallMedium
            text: qsTr("Autonomy")
        }
        ChoiceList {
            id: levels

            anchors.top: autonomyLabel.bottom
            anchors.topMargin: 6
            width: scroller.width
            spacing: 8
            prefix: "level:"
            choices: page.room.levels
            chosen: page.room.level
            interactive: false
            Accessible.name: autonomyLabel.text
            onPicked: id => page.room.level = id
        }
    }
    FocusInSight {
        area: scroller
    }
}
