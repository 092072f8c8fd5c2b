import QtQuick
import Kiv.Tokens

// The edge of a panel that is dragged, or moved by the arrow keys, to size it. A double click puts it
// back.
Item {
    id: handle

    /// What the edge sizes, for people.
    required property string name
    /// The size as it shows, and its limits.
    required property real value
    required property real from
    required property real to
    property bool gripped: false
    /// Whether the edge lies between what is above and below it.
    property bool level: false
    /// Whether the panel is on the far side of the edge.
    property bool mirrored: false

    readonly property int stepSize: 16
    readonly property bool held: area.pressed || activeFocus

    /// The edge was dragged to this place, in the coordinates of the handle's parent.
    signal dragged(place: real)
    /// Keys ask for this size.
    signal sized(size: real)
    signal resetRequested()

    function step(steps: int) {
        handle.sized(handle.value + steps * handle.stepSize)
    }

    implicitWidth: 8
    implicitHeight: 8
    activeFocusOnTab: true
    Accessible.role: Accessible.Slider
    Accessible.name: name
    Accessible.focusable: true
    Accessible.onIncreaseAction: step(1)
    Accessible.onDecreaseAction: step(-1)
    Keys.onLeftPressed: step(mirrored ? 1 : -1)
    Keys.onRightPressed: step(mirrored ? -1 : 1)
    Keys.onUpPressed: step(-1)
    Keys.onDownPressed: step(1)
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End
        if (event.accepted)
            handle.sized(event.key === Qt.Key_Home ? handle.from : handle.to)
    }

    Rectangle {
        readonly property int thickness: handle.held ? 2 : 1

        anchors.centerIn: parent
        width: handle.level ? parent.width : thickness
        height: handle.level ? thickness : parent.height
        visible: handle.held || area.containsMouse
        color: handle.held ? Tokens.accent : Tokens.line2
    }
    Rectangle {
        anchors.centerIn: parent
        visible: handle.gripped
        width: handle.level ? 32 : 3
        height: handle.level ? 3 : 40
        radius: 2
        color: handle.held ? Tokens.accent : Tokens.line2
    }
    MouseArea {
        id: area

        anchors.fill: parent
        hoverEnabled: true
        cursorShape: handle.level ? Qt.SplitVCursor : Qt.SplitHCursor
        preventStealing: true
        onPositionChanged: mouse => {
            const place = mapToItem(handle.parent, mouse.x, mouse.y)
            if (pressed)
                handle.dragged(handle.level ? place.y : place.x)
        }
        onDoubleClicked: handle.resetRequested()
    }
}
