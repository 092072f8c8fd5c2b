import QtQuick
import Kiv.Controls
import Kiv.Tokens

// A name with a quieter note: beside it where there is room, else under it.
Item {
    id: pair

    required property string name
    required property string note
    property TypeStyle nameStyle: Tokens.type.name
    property TypeStyle noteStyle: Tokens.type.small
    property color noteColor: Tokens.t3
    property bool stacked: true

    readonly property bool under: note !== "" && (stacked || title.implicitWidth + 8 + meta.implicitWidth > width)

    implicitHeight: under ? meta.y + meta.height : title.height

    Label {
        id: title

        width: Math.min(implicitWidth, parent.width)
        style: pair.nameStyle
        wrapMode: Text.Wrap
        maximumLineCount: pair.note === "" ? 2 : 1
        text: pair.name
        Accessible.ignored: true
    }
    Label {
        id: meta

        x: pair.under ? 0 : title.width + 8
        y: pair.under ? title.height : Math.round((title.height - height) / 2)
        width: Math.min(implicitWidth, parent.width - x)
        visible: text !== ""
        style: pair.noteStyle
        color: pair.noteColor
        text: pair.note
        Accessible.ignored: true
    }
}
