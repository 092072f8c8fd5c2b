import QtQuick
import Kiv.Tokens

// The shadow of a floating thing: fills the thing's parent and reaches beyond it.
BorderImage {
    enum Level { Floating, High }

    property int level: Shadow.Floating
    property int targetRadius: Tokens.radiusPopover
    readonly property int reach: level === Shadow.High ? 96 : 36
    readonly property int slice: reach + (level === Shadow.High ? 60 : 28)

    anchors.fill: parent
    anchors.margins: -reach
    border.left: slice
    border.right: slice
    border.top: slice
    border.bottom: slice
    // Nothing is drawn for what does not show.
    source: !visible ? "" : "image://shadow/" + (level === Shadow.High ? "high" : "floating") + "/" + (Tokens.dark ? "dark" : "light")
        + "/" + reach + "/" + slice + "/" + targetRadius
    Accessible.ignored: true
}
