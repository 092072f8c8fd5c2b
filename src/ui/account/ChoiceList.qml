pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Account
import Kiv.Controls
import Kiv.Tokens

// The choices of a field below it; a long list can be searched.
Popover {
    id: popover

    required property ChoiceModel choices
    required property string current
    readonly property int searchHeight: choices.searchable ? search.height + 6 : 0

    signal picked(value: string)

    function pick(row: int) {
        const value = choices.valueAt(row)
        close()
        if (row >= 0)
            picked(value)
    }

    alignLeft: true
    onAboutToShow: {
        choices.filter = ""
        search.clear()
        list.currentIndex = choices.rowOf(current)
        list.positionViewAtIndex(Math.max(0, list.currentIndex), ListView.Center)
        if (choices.searchable)
            search.forceActiveFocus(Qt.PopupFocusReason)
        else
            list.forceActiveFocus(Qt.PopupFocusReason)
    }

    contentItem: Item {
        implicitHeight: popover.searchHeight + Math.min(Math.max(1, popover.choices.count), 8) * Tokens.fit(36)
    }

    Item {
        anchors.fill: parent
        Keys.onDownPressed: list.incrementCurrentIndex()
        Keys.onUpPressed: list.decrementCurrentIndex()
        Keys.onReturnPressed: popover.pick(list.currentIndex)
        Keys.onEnterPressed: popover.pick(list.currentIndex)

        TextField {
            id: search

            objectName: "choiceSearch"
            width: parent.width
            implicitHeight: Tokens.fit(36)
            visible: popover.choices.searchable
            iconName: "search"
            placeholderText: qsTr("Search")
            Accessible.name: placeholderText
            onTextEdited: {
                popover.choices.filter = text
                list.currentIndex = list.count > 0 ? 0 : -1
            }
        }
        ListView {
            id: list

            objectName: "choiceList"
            y: popover.searchHeight
            width: parent.width
            height: parent.height - y
            clip: true
            model: popover.choices
            highlightMoveDuration: 0
            boundsBehavior: Flickable.StopAtBounds
            Accessible.role: Accessible.List

            T.ScrollBar.vertical: ScrollBar {}

            delegate: ChoiceRow {
                width: list.width
                marked: ListView.isCurrentItem
                chosen: value === popover.current
                onClicked: popover.pick(index)
            }
        }
        Label {
            y: popover.searchHeight
            x: 10
            height: Tokens.fit(36)
            visible: list.count === 0
            verticalAlignment: Text.AlignVCenter
            style: Tokens.type.small
            color: Tokens.t3
            text: qsTr("Nothing found")
        }
    }
}
