import QtQuick
import Kiv.Canvas
import Kiv.Store

// The page of the platform that the canvas shows, made when there is one.
Loader {
    id: place

    required property AppStore store
    required property int reserved

    sourceComponent: PageSheet {
        readonly property PageLoader place: parent as PageLoader

        store: place?.store
        reserved: place?.reserved ?? 0
        focus: true
        onBrowserRequested: url => Qt.openUrlExternally(url)
    }
}
