import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Icons
import Kiv.Tokens

// A piece of work. Its colour tells its status, as do its edge and its sign.
MarkArea {
    id: block

    required property laneBlock modelData
    required property real trackX

    readonly property WorkStyle look: WorkStyle {
        status: block.modelData.status
    }

    x: trackX + modelData.x
    y: modelData.y
    width: modelData.width
    height: Tokens.fit(40)
    ringRadius: Tokens.radiusControl
    label: modelData.title
    value: look.word

    Rectangle {
        anchors.fill: parent
        radius: Tokens.radiusControl
        color: block.look.fill
        border.width: 1
        border.color: block.look.edge
    }
    Icon {
        visible: name !== ""
        x: block.modelData.signX
        anchors.verticalCenter: parent.verticalCenter
        size: 14
        name: block.look.sign
        color: block.look.ink
    }
    Label {
        visible: block.modelData.titleWidth > 0
        x: block.modelData.titleX
        y: Math.round((block.height - height) / 2)
        width: block.modelData.titleWidth
        style: Tokens.type.smallMedium
        color: block.look.ink
        // Words are not broken into syllables.
        wrapMode: block.modelData.titleWidth < 64 ? Text.NoWrap : Text.Wrap
        maximumLineCount: 2
        text: block.modelData.title
        Accessible.ignored: true
    }
}
