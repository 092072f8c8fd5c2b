import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Icons
import Kiv.Scene
import Kiv.Tokens

// A stage: its bar in the middle of the lane, its count, and how many of the stage before came here.
FocusScope {
    id: stage

    required property fnStage modelData
    required property int index
    required property ArtScene art
    required property int laneHeight
    required property int nameWidth
    required property real countWidth
    required property int convWidth
    required property string drop

    /// Where the lane stands below the words.
    readonly property bool narrow: art.narrow
    readonly property int words: narrow ? 24 : laneHeight

    x: 8
    width: art.inner
    focus: ListView.isCurrentItem

    MarkArea {
        art: stage.art
        place: stage.index
        width: parent.width
        height: stage.laneHeight
        ringX: -6
        label: stage.modelData.name
        value: stage.modelData.n
        share: stage.modelData.conv
        Accessible.name: Figures.joined([label, value, share], ", ")

        Label {
            y: Math.round((stage.words - height) / 2)
            width: (stage.narrow ? count.x : stage.nameWidth) - 16
            style: Tokens.type.name
            wrapMode: Text.Wrap
            maximumLineCount: stage.narrow ? 1 : 2
            text: stage.modelData.name
            Accessible.ignored: true
        }
        Rectangle {
            id: lane

            x: stage.narrow ? 0 : stage.nameWidth
            y: stage.narrow ? stage.words + 2 : 0
            width: stage.narrow ? parent.width : parent.width - x - stage.countWidth - stage.convWidth
            height: parent.height - y
            radius: Tokens.radiusControl
            color: Tokens.inset

            Rectangle {
                property real part: stage.modelData.w

                anchors.horizontalCenter: parent.horizontalCenter
                // Few are still some.
                width: part > 0 ? Math.max(6, part * parent.width * stage.art.entrance.grown(stage.index)) : 0
                height: parent.height
                radius: Math.min(Tokens.radiusControl, width / 2)
                color: Tokens.violet.base

                Behavior on part {
                    NumberAnimation { duration: Tokens.draw; easing.type: Easing.OutCubic }
                }
            }
        }
        Label {
            id: count

            x: parent.width - stage.convWidth - width
            y: Math.round((stage.words - height) / 2)
            elide: Text.ElideNone
            tabular: true
            style: stage.narrow ? Tokens.type.strong : Tokens.type.subheading
            text: stage.modelData.n
            Accessible.ignored: true
        }
        Label {
            x: parent.width - width
            y: Math.round((stage.words - height) / 2)
            elide: Text.ElideNone
            tabular: true
            style: Tokens.type.line
            color: Tokens.t2
            text: stage.modelData.conv === "" ? "—" : stage.modelData.conv
            Accessible.ignored: true
        }
    }
    Row {
        visible: stage.drop !== ""
        x: lane.x + (lane.width - width) / 2
        y: stage.laneHeight + (stage.height - stage.laneHeight - height) / 2
        spacing: 6

        Icon {
            anchors.verticalCenter: parent.verticalCenter
            name: "arrdn"
            size: 12
            color: Tokens.t3
        }
        Label {
            style: Tokens.type.caption
            color: Tokens.t3
            text: qsTr("%1 drop").arg(stage.drop)
        }
    }
}
