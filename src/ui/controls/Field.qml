import QtQuick
import Kiv.Tokens

// A text field under its label.
Item {
    id: form

    required property string label
    property alias field: input

    implicitWidth: 240
    implicitHeight: input.y + input.height

    Label {
        id: heading

        style: Tokens.type.smallMedium
        text: form.label
    }
    TextField {
        id: input

        y: heading.height + 6
        width: form.width
        Accessible.name: form.label
    }
}
