import QtQuick
import Kiv.Store

// The page of the platform that the canvas shows, made when there is one.
Loader {
    required property AppStore store
    required property int reserved

    Component.onCompleted: setSource("PageSheet.qml", { "store": store, "focus": true })
}
