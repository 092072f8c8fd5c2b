import QtQuick
import Kiv.Controls
import Kiv.Tokens

// A score as a bar that grows towards its figure. The lower of two is paler, the higher figure bold.
Item {
    id: half

    required property int score
    required property int other
    required property int most
    required property real figureWidth
    required property color fill
    required property real grown
    /// Towards the left.
    property bool mirrored: false

    implicitHeight: Tokens.fit(20)

    ValueBar {
        anchors.verticalCenter: parent.verticalCenter
        x: half.mirrored ? half.figureWidth + 12 : 0
        width: half.width - half.figureWidth - 12
        height: 12
        radius: Tokens.radiusSmall
        rotation: half.mirrored ? 180 : 0
        value: half.score / half.most
        fill: half.score < half.other ? Qt.alpha(half.fill, 0.45) : half.fill
        grown: half.grown
    }
    Label {
        x: half.mirrored ? 0 : half.width - width
        width: half.figureWidth
        horizontalAlignment: half.mirrored ? Text.AlignLeft : Text.AlignRight
        elide: Text.ElideNone
        tabular: true
        style: half.score > half.other ? Tokens.type.strong : Tokens.type.line
        color: half.score < half.other ? Tokens.t2 : Tokens.t1
        text: half.score
        Accessible.ignored: true
    }
}
