import QtQuick
import Kiv.Canvas

// The highlights of a report below its cards.
RowList {
    readonly property real headHeight: headerItem?.height ?? 0

    header: ReportHead {}
}
