import QtQuick
import Kiv.Icons

// A line icon of our own set, by the name of its file, in any colour.
Image {
    required property string name
    property int size: 20
    property color color: "black"

    sourceSize.width: size
    sourceSize.height: size
    width: size
    height: size
    source: IconAddress.of(name, size, color)
    Accessible.ignored: true
}
