pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas
import Kiv.Controls
import Kiv.Scene

// One objective: its head stays in view beside its key results, on a narrow sheet it stands above.
FocusScope {
    id: row

    required property okObj modelData
    required property int index
    required property ArtScene art
    /// Number of the first key result among all of the scene.
    required property int first
    required property real headWidth
    required property real titleWidth
    required property int resultHeight
    /// Height beyond what the results need.
    required property real spare
    /// What of the list is seen: from here, this high.
    required property real seenFrom
    required property real seenHeight

    readonly property bool above: headWidth === 0
    readonly property int count: modelData.krs.length
    readonly property real seenTop: Math.max(0, seenFrom - y)
    readonly property real seenEnd: Math.min(height, seenFrom - y + seenHeight)

    x: 8
    width: art.inner
    focus: art.current >= first && art.current < first + count
    height: (above ? head.height + 24 : 30) + count * resultHeight + spare

    Divider {
        width: parent.width
        visible: row.index > 0
    }
    ObjectiveHead {
        id: head

        y: row.above ? 12 : Math.max(6, Math.min(row.height - height - 6,
            Math.round((row.seenTop + row.seenEnd - height) / 2)))
        width: row.above ? row.width : row.headWidth
        objective: row.modelData
        colors: row.art.dataColor(row.modelData.scoreColor)
    }
    Column {
        id: results

        x: row.above ? 0 : row.headWidth + 40
        y: row.above ? head.y + head.height + 4 : Math.round((row.height - height) / 2)
        width: row.width - x

        Repeater {
            model: SceneModel {
                rows: row.modelData.krs
            }

            KeyResultLoader {
                required property keyResult modelData
                required property int index

                readonly property real at: results.y + index * row.resultHeight

                art: row.art
                result: modelData
                number: row.first + index
                titleWidth: row.titleWidth
                width: results.width
                height: row.resultHeight
                active: focus || (at + height > row.seenTop - 200 && at < row.seenEnd + 200)
            }
        }
    }
}
