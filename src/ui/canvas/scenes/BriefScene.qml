pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas

// Cards in columns by status.
ArtScene {
    id: brief

    marks: board.groups.count

    ColumnBoard {
        id: board

        art: brief
        y: brief.headroom
        height: brief.height - y - brief.footroom
        spacing: 12
        model: SceneModel {
            rows: brief.scene.groups
        }
        delegate: BriefColumn {
            board: board
        }
    }
}
