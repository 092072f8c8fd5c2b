import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Tokens

// A panel that opens below its button, right edges aligned, and closes on Escape or an outside press.
T.Popup {
    readonly property FocusReturn focusBefore: FocusReturn {}
    property bool alignLeft: false
    /// How far below its place it is while it comes in.
    property real rise: 0

    function toggle() {
        if (visible)
            close()
        else
            open()
    }

    x: alignLeft ? 0 : parent.width - width
    y: parent.height + 6 + rise
    padding: 6
    margins: 8
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    transformOrigin: alignLeft ? T.Popup.TopLeft : T.Popup.TopRight
    onAboutToShow: focusBefore.remember()
    onClosed: focusBefore.giveBack()

    background: Item {
        Shadow {
            level: Shadow.Floating
            targetRadius: Tokens.radiusPopover
        }
        Rectangle {
            anchors.fill: parent
            radius: Tokens.radiusPopover
            color: Tokens.raised
            border.width: 1
            border.color: Tokens.line2
        }
    }
    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Tokens.quick; easing.type: Easing.OutCubic }
        NumberAnimation { property: "rise"; from: Tokens.reducedMotion ? 0 : 4; to: 0; duration: Tokens.quick; easing.type: Easing.OutCubic }
        NumberAnimation { property: "scale"; from: Tokens.reducedMotion ? 1 : 0.98; to: 1; duration: Tokens.quick; easing.type: Easing.OutCubic }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; to: 0; duration: Tokens.instant }
    }
}
