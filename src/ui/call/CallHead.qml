import QtQuick
import Kiv.Call
import Kiv.Controls
import Kiv.Store
import Kiv.Tokens

// Who the call is with and how long it has lasted, and the way back to the window.
Item {
    id: head

    required property CallRoom call

    readonly property bool connected: call.callPhase === Store.CallPhase.Active && !call.callReconnecting

    implicitHeight: Tokens.topBarHeight

    Rectangle {
        id: dot

        x: 20
        anchors.verticalCenter: parent.verticalCenter
        width: 8
        height: 8
        radius: 4
        color: head.connected ? Tokens.green.base : Tokens.t3
    }
    Label {
        id: title

        anchors.left: dot.right
        anchors.leftMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, back.x - x - timer.width - 26)
        style: Tokens.type.strong
        text: qsTr("Call with %1").arg(head.call.callName)
        Accessible.role: Accessible.Heading
    }
    Label {
        id: timer

        objectName: "callTimer"
        anchors.left: title.right
        anchors.leftMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        visible: head.call.callPhase !== Store.CallPhase.Connecting
        style: Tokens.type.line
        tabular: true
        color: Tokens.t3
        text: CallText.length(head.call.callSec)
    }
    Button {
        id: back

        objectName: "leaveCallScreen"
        x: parent.width - width - 12
        anchors.verticalCenter: parent.verticalCenter
        kind: Button.Quiet
        size: Button.Small
        iconName: "left"
        labelColor: hovered ? Tokens.t1 : Tokens.t2
        text: qsTr("Back to the window")
        onClicked: head.call.leaveCallScreen()
    }
}
