import QtQuick
import Kiv.Canvas

// The rows of the parts, with the figures of the answer below them.
RowList {
    footer: UnitFigures {}
}
