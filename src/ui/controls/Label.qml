import QtQuick
import Kiv.Tokens

// Text in one of the styles, with the style's line height. Long text elides at its end.
Text {
    property TypeStyle style: Tokens.type.body
    /// Digits of one width: for figures that stand below each other or that count.
    property bool tabular: false

    font.family: tabular ? Tokens.tabularFamily : Tokens.family
    font.pixelSize: style.size
    font.weight: style.weight
    font.letterSpacing: style.tracking
    lineHeight: style.line
    lineHeightMode: Text.FixedHeight
    topPadding: style.lead
    bottomPadding: -style.lead
    color: Tokens.t1
    textFormat: Text.PlainText
    elide: Text.ElideRight
    Accessible.role: Accessible.StaticText
    Accessible.ignored: text === ""
    Accessible.name: text
}
