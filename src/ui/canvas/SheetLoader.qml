import QtQuick
import Kiv.Store

// The sheet of the scene that is drawn, made when there is one.
Loader {
    required property AppStore store

    signal messageRequested()

    Component.onCompleted: setSource("DrawnSheet.qml", { "store": store })
}
