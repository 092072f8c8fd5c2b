pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// The project that a new agent joins.
Item {
    id: form

    required property list<createChoice> choices
    required property string chosen
    property string chosenTitle: ""

    signal picked(id: string)

    implicitHeight: button.y + button.height

    Label {
        id: heading

        style: Tokens.type.smallMedium
        text: qsTr("Project")
    }
    Button {
        id: button

        objectName: "parentButton"
        y: heading.height + 6
        height: Tokens.fit(40)
        trailingIcon: "down"
        text: form.chosenTitle
        Accessible.name: qsTr("Project: %1").arg(text)
        onClicked: popover.toggle()
        Keys.onDownPressed: popover.open()

        Popover {
            id: popover

            alignLeft: true
            // Above the dialog that it is in.
            z: 3
            width: 320
            onAboutToShow: list.forceActiveFocus(Qt.PopupFocusReason)

            contentItem: Item {
                implicitHeight: list.height
            }

            ListView {
                id: list

                width: popover.availableWidth
                height: Math.min(contentHeight, 6 * Tokens.fit(36))
                model: form.choices
                clip: true
                focus: true
                boundsBehavior: Flickable.StopAtBounds
                flickDeceleration: Tokens.flickDeceleration
                highlightMoveDuration: 0
                Accessible.role: Accessible.List
                Accessible.name: qsTr("Projects")
                Keys.onReturnPressed: (currentItem as MenuRow)?.clicked()
                Keys.onEnterPressed: (currentItem as MenuRow)?.clicked()

                T.ScrollBar.vertical: ScrollBar {}

                delegate: MenuRow {
                    required property int index
                    required property createChoice modelData

                    objectName: "parent:" + modelData.id
                    width: list.width
                    highlighted: ListView.isCurrentItem
                    iconName: modelData.id === form.chosen ? "check" : ""
                    text: modelData.title
                    Accessible.role: Accessible.RadioButton
                    Accessible.checked: modelData.id === form.chosen
                    onClicked: {
                        form.picked(modelData.id)
                        popover.close()
                    }
                    Component.onCompleted: if (modelData.id === form.chosen) list.currentIndex = index
                }
            }
        }
    }
}
