pragma ComponentBehavior: Bound

import QtQuick
import Kiv.Canvas

// What a team noted, column by column.
ArtScene {
    id: retro

    marks: board.groups.count

    ColumnBoard {
        id: board

        art: retro
        y: retro.headroom
        height: retro.height - y - retro.footroom
        spacing: retro.narrow ? 16 : 24
        model: SceneModel {
            rows: retro.scene.groups
        }
        delegate: RetroColumn {
            board: board
        }
    }
}
