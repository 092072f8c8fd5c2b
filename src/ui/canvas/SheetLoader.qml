import QtQuick
import Kiv.Canvas
import Kiv.Scene
import Kiv.Store

// The sheet of the scene that is drawn, made when there is one.
Loader {
    required property AppStore store

    signal messageRequested()

    sourceComponent: Sheet {
        readonly property SheetLoader place: parent as SheetLoader

        objectName: "sheet"
        focus: true
        scene: place?.store.canvas.artScene
        scope: place?.store.scope
        time: place?.store.canvas.sourceTime ?? ""
        linked: place?.store.canvas.sourceMessageId !== ""
        animated: place?.store.canvas.animated ?? false
        onMessageRequested: place.messageRequested()
        onPointChosen: label => place.store.canvas.refinePoint(label)
    }
}
