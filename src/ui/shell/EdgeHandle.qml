import QtQuick
import Kiv.Tokens

// The edge of a panel that is dragged to size it. A double click puts it back.
Item {
    id: handle

    property bool gripped: false

    /// The edge was dragged to this place, in the coordinates of the handle's parent.
    signal dragged(place: real)
    signal resetRequested()

    implicitWidth: 8

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        width: area.pressed ? 2 : 1
        height: parent.height
        visible: area.pressed || area.containsMouse
        color: area.pressed ? Tokens.accent : Tokens.line2
    }
    Rectangle {
        anchors.centerIn: parent
        visible: handle.gripped
        width: 3
        height: 40
        radius: 2
        color: area.pressed ? Tokens.accent : Tokens.line2
    }
    MouseArea {
        id: area

        anchors.fill: parent
        hoverEnabled: true
        cursorShape: Qt.SplitHCursor
        preventStealing: true
        onPositionChanged: mouse => {
            if (pressed)
                handle.dragged(mapToItem(handle.parent, mouse.x, 0).x)
        }
        onDoubleClicked: handle.resetRequested()
    }
}
