import QtQuick
import Kiv.Canvas
import Kiv.Controls

// Leads to the sample of an art.
IconButton {
    id: tab

    required property string modelData
    required property int index
    required property Samples samples

    focusPolicy: Qt.NoFocus
    iconName: modelData
    text: samples.word(modelData)
    active: index === samples.current
    Accessible.role: Accessible.PageTab
    Accessible.selected: active
    onClicked: samples.current = index

    FocusRing {
        visible: tab.active && tab.ListView.view.activeFocus
        anchors.margins: -2
    }
}
