import QtQuick
import Kiv.Controls
import Kiv.Tokens

// A part of an account page, on a surface of its own.
Rectangle {
    id: block

    required property string title
    property string note: ""
    default property alias content: place.data

    implicitHeight: place.y + place.height + 24
    radius: Tokens.radiusSheet
    color: Tokens.surface
    border.width: 1
    border.color: Tokens.line
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Label {
        id: heading

        x: 24
        y: 20
        width: parent.width - 48
        style: Tokens.type.cardTitle
        text: block.title
        Accessible.role: Accessible.Heading
    }
    Label {
        id: words

        x: 24
        y: heading.y + heading.height + 2
        width: parent.width - 48
        visible: text !== ""
        style: Tokens.type.small
        color: Tokens.t3
        wrapMode: Text.Wrap
        text: block.note
    }
    Column {
        id: place

        x: 24
        y: words.visible ? words.y + words.height + 14 : heading.y + heading.height + 16
        width: parent.width - 48
        spacing: 18
    }
}
