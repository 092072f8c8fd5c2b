import QtQuick
import Kiv.Shell
import Kiv.Store

// The page of the program that the canvas shows; nothing while it shows none.
Loader {
    required property AppStore store

    readonly property string page: store.canvas.panel === "agents" ? "AgentsPage.qml"
        : store.canvas.panel === "calls" ? "CallsPage.qml"
        : "EventsPage.qml"

    function leave() {
        store.canvas.closePanel()
        store.layout.focusAsk()
    }

    active: store.canvas.state === Store.CanvasState.Panel
    onPageChanged: setSource(page, { "store": store })
    onLoaded: {
        const frame = item as PanelFrame
        frame.closed.connect(leave)
        frame.entered()
    }
}
