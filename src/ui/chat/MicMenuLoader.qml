import QtQuick
import Kiv.Chat
import Kiv.Store

// The choice of the microphone, made when it is asked for.
Loader {
    id: place

    required property MicrophoneRoom microphone

    function open() {
        if (status === Loader.Null)
            setSource("MicMenu.qml", { "microphone": microphone, "parent": place.parent })
        const menu = item as MicMenu
        menu.open()
    }
}
