import QtQuick
import Kiv.Canvas
import Kiv.Tokens

// The rows of the parts, with the figures of the answer below them.
RowList {
    leastRow: Tokens.fit(40)
    mostRow: 52
    footer: UnitFigures {}
}
