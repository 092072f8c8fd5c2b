import QtQuick
import QtQuick.Templates as T
import Kiv.Tokens

T.ToolTip {
    id: tip

    property string keys: ""

    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    horizontalPadding: 8
    verticalPadding: 5
    margins: 6
    delay: Tokens.tipDelay
    z: 4
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

    contentItem: Row {
        spacing: 8

        Label {
            width: Math.min(implicitWidth, 420)
            style: Tokens.type.captionMedium
            color: Tokens.tipInk
            wrapMode: Text.Wrap
            text: tip.text
        }
        Label {
            visible: text !== ""
            style: Tokens.type.captionMedium
            color: Tokens.tipInk
            opacity: 0.7
            text: tip.keys
        }
    }
    background: Rectangle {
        radius: Tokens.radiusChip
        color: Tokens.tip
    }
    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Tokens.quick; easing.type: Easing.OutCubic }
    }
}
