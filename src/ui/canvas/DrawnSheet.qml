import QtQuick
import Kiv.Canvas
import Kiv.Store

// The sheet of the scene that the canvas shows.
Sheet {
    id: sheet

    required property AppStore store

    objectName: "sheet"
    focus: true
    scene: store.canvas.artScene
    source: store.canvas.source
    time: store.canvas.sourceTime
    linked: store.canvas.sourceMessageId !== ""
    animated: store.canvas.animated
    onMessageRequested: (parent as SheetLoader).messageRequested()
    onPointChosen: label => store.canvas.refinePoint(label)
}
