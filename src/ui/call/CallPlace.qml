import QtQuick
import Kiv.Call
import Kiv.Store

// The call over the whole window. It stays as it is while the person is back in the window.
FocusScope {
    id: place

    required property AppStore store
    readonly property bool shown: store.call.call && store.call.callShown

    onShownChanged: {
        if (!shown)
            return
        store.layout.closePopovers();
        (screen.item as CallScreen)?.forceActiveFocus(Qt.OtherFocusReason)
    }

    CallNews {
        call: place.store.call
    }
    Loader {
        id: screen

        anchors.fill: parent
        active: place.store.call.call
        visible: place.shown
        focus: true
        onLoaded: (item as CallScreen).forceActiveFocus(Qt.OtherFocusReason)
        Component.onCompleted: setSource("CallScreen.qml", { "store": place.store })
    }
}
