import QtQuick
import Kiv.Store

// The create wizard, made when it is first asked for.
Loader {
    required property CreateRoom room
    readonly property bool wanted: room.open

    onWantedChanged: if (status === Loader.Null) setSource("CreateWizard.qml", { "room": room })
}
