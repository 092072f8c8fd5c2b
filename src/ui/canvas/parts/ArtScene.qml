import QtQuick
import Kiv.Canvas
import Kiv.Scene
import Kiv.Tokens

// What all scenes share: what they draw and where, how they come in, and the way of the keys through
// their marks. A scene is one stop of the tab key; the arrow keys go from mark to mark.
FocusScope {
    id: art

    readonly property SceneBody body: parent as SceneBody
    readonly property sceneOut scene: body?.scene
    /// Padding at the sides.
    readonly property int side: body?.side ?? 0
    readonly property bool animated: body?.animated ?? false
    readonly property bool asks: body?.asks ?? false
    readonly property bool pictured: body?.pictured ?? false
    /// Padding above the first row.
    readonly property int headroom: side >= 32 ? 24 : 16
    /// Padding below the last one.
    readonly property int footroom: side >= 32 ? 20 : 16
    readonly property real inner: width - 2 * side
    readonly property bool wide: inner >= Tokens.wideBody
    readonly property bool narrow: inner < Tokens.mediumBody

    /// How many marks the arrow keys go through, and at which of them they stand.
    property int marks: 0
    property int current: 0
    /// The mark that holds the focus.
    property Item marked: null

    readonly property Entrance entrance: Entrance {
        animated: art.animated
    }

    /// A mark was activated: more about what it stands for is wanted.
    signal pointChosen(label: string)

    function dataColor(color: int): DataColor {
        return [Tokens.violet, Tokens.blue, Tokens.green, Tokens.amber, Tokens.red][color]
    }
    /// Scrolls `area` so that the mark with the focus is in view.
    function reveal(area: Flickable) {
        if (marked === null)
            return
        const top = marked.mapToItem(area.contentItem, 0, 0).y
        area.contentY = Math.max(top + marked.height + 8 - area.height, Math.min(top - 8, area.contentY))
        area.returnToBounds()
    }
    function go(mark: int) {
        current = Math.max(0, Math.min(marks - 1, mark))
    }

    activeFocusOnTab: marks > 0
    focus: true
    opacity: entrance.fade
    onMarksChanged: go(current)
    onPointChosen: label => {
        if (asks)
            body.pointChosen(label)
    }
    Accessible.role: Accessible.Table
    Accessible.name: scene.title
    Accessible.description: scene.insight === "" ? scene.countLine : scene.insight

    Keys.onUpPressed: go(current - 1)
    Keys.onLeftPressed: go(current - 1)
    Keys.onDownPressed: go(current + 1)
    Keys.onRightPressed: go(current + 1)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Home)
            go(0)
        else if (event.key === Qt.Key_End)
            go(marks - 1)
    }
}
