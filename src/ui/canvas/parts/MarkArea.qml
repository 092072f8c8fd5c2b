import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// Lies over a row or a mark, or is the row: says what it stands for when pointed at, and asks about
// it when activated by a click, Return or Space.
Item {
    id: mark

    required property ArtScene art
    /// Place among the marks of the scene; -1 for one that the keys leave out.
    property int place: -1
    property string label: ""
    property string value: ""
    /// Of the whole.
    property string share: ""
    /// What the colour says, in words.
    property string tone: ""
    /// What it tells when it is pointed at, beside value and share.
    property string tip: label
    /// What else is said of it.
    property string note: ""
    property int ringRadius: Tokens.radiusSmall
    /// How far inside the ring stands: at the sides, above and below.
    property int ringX: -2
    property int ringY: -2

    signal activated()

    focus: place >= 0 && art.current === place
    onActiveFocusChanged: if (activeFocus)
        art.marked = mark
    onActivated: art.pointChosen(label)
    Accessible.role: Accessible.Row
    Accessible.name: Figures.joined([label, value, tone, note], ", ")
    Accessible.focusable: place >= 0
    Accessible.focused: activeFocus
    Accessible.onPressAction: activated()
    Keys.onReturnPressed: activated()
    Keys.onEnterPressed: activated()
    Keys.onSpacePressed: activated()

    HoverHandler {
        id: pointer

        cursorShape: mark.art.asks ? Qt.PointingHandCursor : Qt.ArrowCursor
    }
    TapHandler {
        onTapped: mark.activated()
    }
    FocusRing {
        z: 1
        anchors.margins: mark.ringX
        anchors.topMargin: mark.ringY
        anchors.bottomMargin: mark.ringY
        targetRadius: mark.ringRadius
        visible: mark.activeFocus && !mark.art.pictured
    }
    Item {
        x: pointer.hovered ? pointer.point.position.x : parent.width / 2
        height: pointer.hovered ? Math.min(parent.height, pointer.point.position.y + 12) : parent.height

        TipLoader {
            active: (pointer.hovered || mark.activeFocus) && text + keys !== ""
            text: mark.tip
            keys: Figures.joined([mark.value, mark.share], " · ")
        }
    }
}
