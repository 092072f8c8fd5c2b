pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene
import Kiv.Tokens

// The parts of a whole as a ring, the whole in its middle. Each part has a row of its own beside it,
// so the keys leave the segments out.
Item {
    id: ring

    required property ArtScene art
    /// The scene's list of parts.
    required property var parts
    required property string total
    /// What the total counts; may be empty.
    required property string unit

    readonly property int thickness: 28
    /// How much of the whole the parts are, in per cent.
    readonly property real told: shares.sum

    implicitWidth: 208
    implicitHeight: 208
    Accessible.ignored: true

    RowColumn {
        id: shares

        rows: ring.parts
        field: "w"
    }
    // What the parts leave of the whole.
    Rectangle {
        anchors.fill: parent
        radius: width / 2
        color: "transparent"
        border.width: ring.thickness
        border.color: Tokens.sunken
        visible: ring.told < 99.5
    }
    Repeater {
        model: SceneModel {
            rows: ring.parts
        }

        MarkArea {
            id: part

            required property ueRow modelData

            anchors.fill: parent
            art: ring.art
            containmentMask: segment
            label: modelData.name
            value: modelData.value
            share: Figures.share(modelData.w, 100)
            Accessible.ignored: true

            RingSegment {
                id: segment

                property real from: part.modelData.left / 100
                property real extent: part.modelData.w / 100

                readonly property real grown: ring.art.entrance.grown(0)

                anchors.fill: parent
                start: from * grown
                sweep: extent * grown
                thickness: ring.thickness
                color: ring.art.dataColor(part.modelData.color).base

                Behavior on from {
                    NumberAnimation { duration: Tokens.draw; easing.type: Easing.OutCubic }
                }
                Behavior on extent {
                    NumberAnimation { duration: Tokens.draw; easing.type: Easing.OutCubic }
                }
            }
        }
    }
    Column {
        anchors.centerIn: parent
        width: ring.width - 2 * ring.thickness - 20
        visible: ring.total !== ""

        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            // A figure is never cut: it gets smaller.
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 12
            elide: Text.ElideNone
            style: Tokens.type.figure
            text: ring.total
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            style: Tokens.type.caption
            color: Tokens.t3
            text: ring.unit === "" ? qsTr("total") : ring.unit
        }
    }
}
