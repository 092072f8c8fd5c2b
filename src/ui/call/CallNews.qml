import QtQuick
import Kiv.Controls
import Kiv.Store

// Says once what has become of a call, to those who do not see it.
Announcement {
    required property CallRoom call

    objectName: "callNews"
    Accessible.role: Accessible.AlertMessage
    Accessible.name: words
    words: !call.call ? ""
        : call.callError !== "" ? call.callError
        : call.callReconnecting ? qsTr("Reconnecting")
        : call.callPhase === Store.CallPhase.Connecting ? qsTr("Connecting")
        : call.callPhase === Store.CallPhase.Ending ? qsTr("Call ended")
        : call.callEndingSoon ? qsTr("Ending soon")
        : qsTr("Connected")
}
