import QtQuick
import QtQuick.Templates as T
import Kiv.Controls
import Kiv.Tokens

// A sheet in the middle of the window that everything else waits for.
T.Popup {
    readonly property FocusReturn focusBefore: FocusReturn {}

    anchors.centerIn: T.Overlay.overlay
    z: 2
    padding: 36
    bottomPadding: 28
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding

    T.Overlay.modal: Rectangle {
        color: Tokens.scrim
    }
    onAboutToShow: focusBefore.remember()
    onClosed: focusBefore.giveBack()

    background: Item {
        Shadow {
            level: Shadow.High
            targetRadius: Tokens.radiusDialog
        }
        Rectangle {
            anchors.fill: parent
            radius: Tokens.radiusDialog
            color: Tokens.surface
        }
    }
    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Tokens.quick; easing.type: Easing.OutCubic }
    }
}
