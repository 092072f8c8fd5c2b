import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Tokens

// The parts of a whole in one bar below their total.
Item {
    id: whole

    required property ArtScene art

    /// The scene's list of parts.
    required property var parts
    /// How much of the whole the parts are, in per cent.
    readonly property real told: shares.sum

    implicitHeight: track.y + track.height

    RowColumn {
        id: shares

        rows: whole.parts
        field: "w"
    }
    Label {
        id: total

        visible: text !== ""
        elide: Text.ElideNone
        style: Tokens.type.figureLarge
        text: whole.art.scene.coTotal
    }
    Label {
        visible: total.visible
        anchors.baseline: total.baseline
        anchors.left: total.right
        anchors.leftMargin: 10
        color: Tokens.t2
        text: whole.art.scene.coTotalSub === "" ? qsTr("total") : whole.art.scene.coTotalSub
    }
    Rectangle {
        id: track

        y: total.visible ? total.height + 12 : 0
        width: parent.width
        height: 20
        radius: Tokens.radiusSmall
        color: whole.told < 99.5 ? Tokens.sunken : "transparent"

        StackedBar {
            width: whole.told < 99.5 ? parent.width * whole.told / 100 : parent.width
            art: whole.art
            parts: whole.parts
        }
    }
}
