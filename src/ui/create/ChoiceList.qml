pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Create
import Kiv.Store
import Kiv.Tokens

// Cards of which one is chosen: one stop of the tab key, and the arrow keys choose.
ListView {
    id: list

    required property list<createChoice> choices
    required property string chosen
    /// Before the id of a choice in the name of its card.
    property string prefix: "choice:"
    property bool keyed: false

    signal picked(id: string)

    function choose() {
        keyed = true
        const card = currentItem as ChoiceCard
        card?.clicked()
    }

    implicitHeight: contentHeight
    model: choices
    spacing: 10
    // Room for the ring of a card.
    leftMargin: 4
    rightMargin: 4
    clip: contentHeight > height
    activeFocusOnTab: true
    keyNavigationEnabled: false
    boundsBehavior: Flickable.StopAtBounds
    flickDeceleration: Tokens.flickDeceleration
    highlightMoveDuration: 0
    Accessible.role: Accessible.List
    Keys.onUpPressed: {
        decrementCurrentIndex()
        choose()
    }
    Keys.onDownPressed: {
        incrementCurrentIndex()
        choose()
    }
    onActiveFocusChanged: if (!activeFocus) keyed = false

    T.ScrollBar.vertical: ScrollBar {}

    delegate: ChoiceCard {
        id: card

        required property int index
        required property createChoice modelData

        objectName: list.prefix + modelData.id
        width: list.width - 8
        choice: modelData
        checked: modelData.id === list.chosen
        ringed: list.keyed && ListView.isCurrentItem
        onCheckedChanged: if (checked) list.currentIndex = index
        Component.onCompleted: if (checked) list.currentIndex = index
        onClicked: list.picked(modelData.id)
    }
}
