import QtQuick
import Kiv.Controls
import Kiv.Tokens

// A sum of credits under its label; a dash when it is not known.
Column {
    id: figure

    required property string label
    required property real credits
    readonly property string text: credits < 0 ? "–" : credits.toLocaleString(Qt.locale(Qt.uiLanguage), "f", 2)

    spacing: 2

    Label {
        style: Tokens.type.smallMedium
        color: Tokens.t2
        text: figure.label
    }
    Label {
        style: Tokens.type.figure
        text: figure.text
    }
}
