import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Icons
import Kiv.Store
import Kiv.Tokens

// The line above the sheet: what is drawn and which question it answers, or how far the answer is.
Item {
    id: caption

    required property CanvasRoom canvas
    required property ChatRoom chat
    required property ScopeRoom scope
    required property LayoutRoom layout
    /// What is drawn below, if anything is.
    required property Item sheet

    readonly property bool thinking: canvas.state === Store.CanvasState.ThinkingSkeleton
    readonly property bool building: canvas.state === Store.CanvasState.BuildingScene
    readonly property bool drawn: canvas.state === Store.CanvasState.Scene

    Item {
        id: sign

        anchors.verticalCenter: parent.verticalCenter
        width: caption.drawn ? 32 : 20
        height: 32

        Rectangle {
            anchors.fill: parent
            visible: caption.drawn
            radius: Tokens.radiusControl
            color: Tokens.surface
            border.width: 1
            border.color: Tokens.line

            Icon {
                anchors.centerIn: parent
                name: caption.canvas.art
                size: 18
                color: Tokens.accentText
            }
        }
        Mark {
            anchors.centerIn: parent
            visible: !caption.drawn
            size: 20
            thinking: caption.thinking
        }
    }
    FullLabel {
        id: word

        objectName: "captionWord"
        anchors.left: sign.right
        anchors.leftMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, actions.x - x - 8)
        style: Tokens.type.strong
        text: caption.thinking ? qsTr("%1 is thinking").arg(caption.scope.scopeName)
            : caption.building ? qsTr("Drawing the %1").arg(caption.canvas.artInfo.word.toLowerCase())
            : caption.canvas.artInfo.word
        Accessible.ignored: text === ""
    }
    FullLabel {
        objectName: "captionLine"
        anchors.left: word.right
        anchors.leftMargin: 10
        anchors.right: actions.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        visible: width > 24
        style: Tokens.type.small
        tabular: caption.thinking
        color: drawnActions.failure === "" ? Tokens.t3 : Tokens.dangerText
        text: drawnActions.failure !== "" ? drawnActions.failure
            : caption.thinking ? qsTr("%1 s").arg(caption.canvas.thinkingSeconds)
            : caption.drawn && caption.canvas.query !== "" ? qsTr("Answer to “%1”").arg(caption.canvas.query)
            : ""
        Accessible.ignored: text === ""
    }
    Row {
        id: actions

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        HistorySteps {
            canvas: caption.canvas
        }
        IconButton {
            objectName: "fullButton"
            anchors.verticalCenter: parent.verticalCenter
            iconName: caption.layout.canvasFull ? "shrink" : "expand"
            text: caption.layout.canvasFull ? qsTr("Back to the window") : qsTr("Fill the window")
            keys: caption.layout.canvasFull ? qsTr("Esc") : qsTr("Ctrl Shift F")
            onClicked: caption.layout.toggleCanvasFull()
        }
        Button {
            visible: caption.thinking && caption.chat.canStop
            size: Button.Small
            iconName: "stop"
            text: qsTr("Stop")
            onClicked: caption.chat.stopLive()
        }
        CanvasActions {
            id: drawnActions

            visible: caption.drawn
            canvas: caption.canvas
            chat: caption.chat
            sheet: caption.sheet
            compact: caption.width - 48 < Tokens.mediumBody
        }
    }
}
