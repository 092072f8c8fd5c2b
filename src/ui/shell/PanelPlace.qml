import QtQuick
import Kiv.Shell
import Kiv.Store

// The page of the program that the canvas shows; nothing while it shows none.
Loader {
    id: place

    required property AppStore store

    function leave() {
        store.canvas.closePanel()
        store.layout.focusAsk()
    }

    active: store.canvas.state === Store.CanvasState.Panel
    sourceComponent: store.canvas.panel === "agents" ? agents
        : store.canvas.panel === "calls" ? calls
        : events
    onLoaded: (item as PanelFrame)?.entered()

    Component {
        id: agents

        AgentsPage {
            store: (parent as PanelPlace)?.store
            onClosed: (parent as PanelPlace)?.leave()
        }
    }
    Component {
        id: calls

        CallsPage {
            store: (parent as PanelPlace)?.store
            onClosed: (parent as PanelPlace)?.leave()
        }
    }
    Component {
        id: events

        EventsPage {
            store: (parent as PanelPlace)?.store
            onClosed: (parent as PanelPlace)?.leave()
        }
    }
}
