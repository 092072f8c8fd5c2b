import QtQuick
import Kiv.Account
import Kiv.Store

// The account pages, made when they are opened.
Loader {
    required property AppStore store

    active: store.layout.account !== ""
    onLoaded: (item as AccountPage)?.forceActiveFocus(Qt.OtherFocusReason)
    Component.onCompleted: setSource("AccountPage.qml", { "store": store })
}
