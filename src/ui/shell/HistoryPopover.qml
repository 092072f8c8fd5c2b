pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Icons
import Kiv.Store
import Kiv.Tokens

// The canvases drawn in this run, newest first.
Popover {
    id: popover

    required property AppStore store
    readonly property CanvasRoom canvas: store.canvas
    readonly property PopupPlace place: parent as PopupPlace
    readonly property real most: place?.most ?? 600

    width: Tokens.fit(360)
    visible: place?.shown ?? false
    onAboutToHide: store.layout.closePopovers()
    onAboutToShow: {
        list.currentIndex = 0
        list.forceActiveFocus(Qt.PopupFocusReason)
    }

    contentItem: Item {
        implicitHeight: Tokens.fit(42) + (list.count === 0 ? Tokens.fit(34) : list.height)
    }

    Label {
        x: 12
        y: 10
        style: Tokens.type.strong
        text: qsTr("History")
        Accessible.role: Accessible.Heading
    }
    Label {
        x: 12
        y: Tokens.fit(46)
        visible: list.count === 0
        color: Tokens.t3
        text: qsTr("Nothing drawn yet")
    }
    ListView {
        id: list

        objectName: "historyList"
        y: Tokens.fit(42)
        width: popover.availableWidth
        height: Math.min(contentHeight, popover.most - Tokens.fit(60))
        model: popover.canvas.history
        clip: true
        focus: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        flickDeceleration: Tokens.flickDeceleration
        highlightMoveDuration: 0
        Accessible.role: Accessible.List
        Accessible.name: qsTr("History")
        Keys.onReturnPressed: popover.canvas.openHistory(currentIndex)
        Keys.onEnterPressed: popover.canvas.openHistory(currentIndex)

        T.ScrollBar.vertical: ScrollBar {}

        delegate: T.ItemDelegate {
            id: row

            required property int index
            required property string art
            required property string title
            required property string query
            required property string time

            width: list.width
            height: Tokens.fit(48)
            focusPolicy: Qt.NoFocus
            text: title
            highlighted: ListView.isCurrentItem && list.activeFocus
            Accessible.name: qsTr("%1, %2, %3").arg(title).arg(query).arg(time)
            Accessible.role: Accessible.ListItem
            onClicked: popover.canvas.openHistory(index)

            background: Rectangle {
                radius: Tokens.radiusControl
                color: row.hovered || row.highlighted ? Tokens.hoverRaised : "transparent"
            }

            Icon {
                x: 12
                anchors.verticalCenter: parent.verticalCenter
                name: row.art === "" ? "globe" : row.art
                color: Tokens.t2
            }
            Column {
                x: 44
                width: stamp.x - x - 12
                anchors.verticalCenter: parent.verticalCenter

                FullLabel {
                    width: parent.width
                    style: Tokens.type.name
                    text: row.title
                }
                FullLabel {
                    width: parent.width
                    style: Tokens.type.caption
                    color: Tokens.t3
                    text: row.query
                }
            }
            Label {
                id: stamp

                x: parent.width - width - 12
                anchors.verticalCenter: parent.verticalCenter
                style: Tokens.type.caption
                tabular: true
                color: Tokens.t3
                text: row.time
                Accessible.ignored: true
            }
        }
    }
}
