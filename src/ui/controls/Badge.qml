import QtQuick
import Kiv.Tokens

// How many things wait behind a button: nothing for none, "9+" from ten on.
Rectangle {
    id: badge

    required property int count
    property color ground: Tokens.rail

    visible: count > 0
    width: Math.max(height, number.implicitWidth + 12)
    height: Tokens.fit(20)
    radius: 10
    color: ground

    Rectangle {
        anchors.fill: parent
        anchors.margins: 2
        radius: 8
        color: Tokens.accent
    }
    Label {
        id: number

        anchors.centerIn: parent
        style: Tokens.type.microStrong
        tabular: true
        color: Tokens.accentInk
        text: badge.count > 9 ? "9+" : badge.count
        Accessible.ignored: true
    }
}
