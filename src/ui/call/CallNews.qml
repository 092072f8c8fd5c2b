import QtQuick
import Kiv.Store

// Says once what has become of a call, to those who do not see it.
Item {
    id: news

    required property CallRoom call

    objectName: "callNews"
    width: 1
    height: 1
    Accessible.role: Accessible.AlertMessage
    Accessible.name: !call.call ? ""
        : call.callError !== "" ? call.callError
        : call.callReconnecting ? qsTr("Reconnecting")
        : call.callPhase === Store.CallPhase.Connecting ? qsTr("Connecting")
        : call.callPhase === Store.CallPhase.Ending ? qsTr("Call ended")
        : call.callEndingSoon ? qsTr("Ending soon")
        : qsTr("Connected")
}
