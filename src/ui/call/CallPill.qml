import QtQuick
import Kiv.Call
import Kiv.Controls
import Kiv.Icons
import Kiv.Store
import Kiv.Tokens

// The call that goes on while the person is back in the window. It leads back to the call.
BareButton {
    id: pill

    required property CallRoom call
    readonly property string time: CallText.length(call.callSec)

    implicitWidth: row.implicitWidth + 28
    implicitHeight: Tokens.fit(36)
    text: qsTr("Back to the call")
    Accessible.name: call.callHeld ? qsTr("Back to the call with %1, on hold").arg(call.callName)
        : call.callMuted ? qsTr("Back to the call with %1, muted").arg(call.callName)
        : qsTr("Back to the call with %1").arg(call.callName)
    onClicked: call.showCall()

    background: Ground {
        radius: height / 2
        color: pill.hovered || pill.down ? Tokens.hover : Tokens.green.tint
        border.width: 1
        border.color: Tokens.green.line

        FocusRing {
            visible: pill.visualFocus
            targetRadius: pill.height / 2
        }
    }

    Row {
        id: row

        anchors.centerIn: parent
        spacing: 8

        Icon {
            anchors.verticalCenter: parent.verticalCenter
            name: pill.call.callHeld ? "pause" : pill.call.callMuted ? "micoff" : "phone"
            size: 16
            color: Tokens.green.text
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, Tokens.fit(112))
            style: Tokens.type.smallMedium
            text: pill.call.callName
            Accessible.ignored: true
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            objectName: "callPillState"
            style: Tokens.type.small
            tabular: true
            color: Tokens.green.text
            text: pill.call.callPhase === Store.CallPhase.Connecting ? qsTr("Connecting")
                : pill.call.callPhase === Store.CallPhase.Ending ? qsTr("Call ended")
                : pill.time
            Accessible.ignored: true
        }
    }
    TipLoader {
        active: pill.hovered && !pill.down
        text: pill.text
    }
}
