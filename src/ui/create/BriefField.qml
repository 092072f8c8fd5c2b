import QtQuick
import Kiv.Controls
import Kiv.Tokens

// Several lines of typing under their label.
Item {
    id: form

    required property string label
    property alias failed: frame.failed
    property alias area: frame.area

    Label {
        id: heading

        style: Tokens.type.smallMedium
        text: form.label
    }
    TextArea {
        id: frame

        y: heading.height + 6
        width: parent.width
        height: parent.height - y
        label: form.label
    }
}
