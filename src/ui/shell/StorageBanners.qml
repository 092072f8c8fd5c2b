import QtQuick
import Kiv.Controls
import Kiv.Store

// What cannot be saved, and what was found damaged.
Column {
    id: banners

    required property StorageRoom storage

    Banner {
        objectName: "troubleBanner"
        width: parent.width
        visible: banners.storage.trouble !== ""
        iconName: "alert"
        text: banners.storage.trouble
        action: qsTr("Try again")
        onActed: banners.storage.retry()
    }
    Banner {
        objectName: "damageBanner"
        width: parent.width
        visible: banners.storage.damage !== ""
        iconName: "alert"
        text: banners.storage.damage
        action: qsTr("Open the folder")
        closable: true
        onActed: Qt.openUrlExternally(banners.storage.damageFolder)
        onClosed: banners.storage.dismissDamage()
    }
}
